// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Project files.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "app/open/project_file.h"
#include "base/encoding.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (const auto paths = decodeProject(text, "C:\\Campora")) {
        for (const std::string& path : *paths) {
            if (!isUtf8(path) || path.find('\n') != std::string::npos || path.starts_with('/')) {
                std::abort();  // not a path of one line, or not put into the program's folder
            }
        }
    }
    return 0;
}
