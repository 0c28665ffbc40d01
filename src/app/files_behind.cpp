// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/files_behind.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>

#include "app/file_loading.h"
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
    const fs::path folder = nativePath(path);
    if (!fs::is_directory(folder, error)) {
        return {std::string(path)};
    }
    std::vector<std::string> files;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string file = pathText(entry->path());
        std::error_code ignored;
        if (formatOf(file) != nullptr && entry->is_regular_file(ignored) && !accompanies(file)) {
            files.push_back(file);
        }
    }
    std::sort(files.begin(), files.end(), [](const std::string& a, const std::string& b) {
        return std::forward_as_tuple(lowerCase(a), a) < std::forward_as_tuple(lowerCase(b), b);
    });
    return files;
}

}  // namespace campora
