// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/files_behind.h"

#include <filesystem>
#include <system_error>

#include "app/file_loading.h"
#include "base/folder_files.h"
#include "base/paths.h"
#include "base/text.h"
#include "work/companion_names.h"
#include "work/registrations.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

bool accompanies(const std::string& path) {
    if (equalIgnoringCase(fileNamePart(path), kRegistrationsFile)) {
        return true;
    }
    const std::string track = companionNames(path).trackPath;
    std::error_code ignored;
    return !track.empty() && track != path &&
           fs::exists(nativePath(findIgnoringCase(track)), ignored);
}

}  // namespace

std::vector<std::string> filesBehind(std::string_view path) {
    std::error_code error;
    if (!fs::is_directory(nativePath(path), error)) {
        return {std::string(path)};
    }
    return filesIn(path, [](const std::string& file) {
        return formatOf(file) != nullptr && !accompanies(file);
    });
}

}  // namespace campora
