// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/data_folder.h"

#include <filesystem>
#include <system_error>

#include "base/paths.h"

namespace campora {

std::string dataFolderOf(std::string_view programFolder) {
    const std::filesystem::path installed =
        nativePath(programFolder).parent_path() / "share" / "campora";
    std::error_code error;
    return std::filesystem::is_directory(installed, error) ? pathText(installed)
                                                           : std::string(programFolder);
}

}  // namespace campora
