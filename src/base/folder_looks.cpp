// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/folder_looks.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "base/time_limit.h"

namespace campora {

namespace fs = std::filesystem;

namespace {

/// Also not, for a link to nothing.
bool isFileEntry(const fs::directory_entry& entry) {
    std::error_code ignored;
    return entry.exists(ignored) && !entry.is_directory(ignored);
}

}  // namespace

FolderLooks::Look FolderLooks::lookInto(const std::string& folder) {
    Look look;
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? fs::path(".") : nativePath(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (!isFileEntry(*entry)) {
            continue;
        }
        std::string name = pathText(entry->path().filename());
        std::string& best = look.byLowerCase[lowerCase(name)];
        if (best.empty() || name < best) {
            best = name;
        }
        look.names.insert(std::move(name));
    }
    return look;
}

FolderLooks::Found FolderLooks::find(std::string_view path) {
    const std::string name(fileNamePart(path));
    const std::string folder(path.substr(0, path.size() - name.size()));
    auto known = looks_.find(folder);
    if (known == looks_.end()) {
        known = looks_.emplace(folder, withinLimit([folder] { return lookInto(folder); })).first;
    }
    const std::optional<Look>& look = known->second;
    if (!look) {
        return {{}, false};
    }
    // A name may hold a "\" itself where that separates nothing.
    if (look->names.contains(name) ||
        (path.find('\\') != std::string_view::npos && isThere(path) && !isFolder(path))) {
        return {std::string(path)};
    }
    const auto best = look->byLowerCase.find(lowerCase(name));
    return {best == look->byLowerCase.end() ? std::string() : folder + best->second};
}

}  // namespace campora
