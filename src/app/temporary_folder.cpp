// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/temporary_folder.h"

#include <filesystem>
#include <random>
#include <system_error>

#include "base/file_access.h"
#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

namespace fs = std::filesystem;

TemporaryFolder::~TemporaryFolder() {
    if (!folder_.empty()) {
        std::error_code ignored;
        fs::remove_all(nativePath(folder_), ignored);
    }
}

Result<std::string> TemporaryFolder::file(std::string_view name) {
    if (folder_.empty()) {
        std::error_code error;
        const fs::path parent = fs::temp_directory_path(error);
        // A name that nobody foresees: whoever made the folder first could put a link into it.
        std::random_device random;
        const fs::path made = parent / ("campora-" + hexText(random(), 8) + hexText(random(), 8));
        if (error || !fs::create_directory(made, error)) {
            return fileFailure(TextId::FileCannotBeWritten, pathText(made), error);
        }
        fs::permissions(made, fs::perms::owner_all, error);
        folder_ = pathText(made);
    }
    return pathText(nativePath(folder_) / nativePath(name));
}

}  // namespace campora
