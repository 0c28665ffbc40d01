// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "support/shared_samples.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "base/paths.h"

namespace campora {

std::optional<std::string> sharedSample(std::string_view relative) {
    const char* const named = std::getenv("CAMPORA_SHARED");
    const std::filesystem::path folder =
        named != nullptr ? std::filesystem::path(named)
                         : std::filesystem::path(CAMPORA_SOURCE_DIR).parent_path() / "shared";
    const std::filesystem::path path = folder / nativePath(relative);
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        return std::nullopt;
    }
    return pathText(path);
}

}  // namespace campora
