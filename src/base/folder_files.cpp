// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/folder_files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/paths.h"
#include "base/text.h"

namespace campora {

namespace fs = std::filesystem;

std::vector<std::string> filesIn(std::string_view folder,
                                 const std::function<bool(const std::string& path)>& wanted) {
    using Keyed = std::pair<std::string, std::string>;  // lower-case path, path
    std::vector<Keyed> found;
    std::error_code error;
    for (fs::directory_iterator entry(nativePath(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        std::string path = pathText(entry->path());
        std::error_code ignored;
        if (wanted(path) && entry->is_regular_file(ignored)) {
            std::string key = lowerCase(path);
            found.emplace_back(std::move(key), std::move(path));
        }
    }
    std::sort(found.begin(), found.end());
    std::vector<std::string> files;
    files.reserve(found.size());
    for (Keyed& file : found) {
        files.push_back(std::move(file.second));
    }
    return files;
}

}  // namespace campora
