// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/files_in_use.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/folder_files.h"
#include "base/paths.h"
#include "base/text.h"

namespace campora {

namespace {

std::uintmax_t sizeOf(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::file_size(nativePath(path), ignored);
}

}  // namespace

void FilesInUse::add(std::string_view path) {
    std::string found = findIgnoringCase(path);
    if (isThere(found)) {
        addFound(std::move(found));
    }
}

void FilesInUse::addFound(std::string path) {
    const std::uintmax_t size = sizeOf(path);
    files_.push_back({std::move(path), size});
}

void FilesInUse::addWith(std::string_view path, std::span<const std::string> names) {
    add(path);
    if (names.empty()) {
        return;
    }
    const std::string folder = folderOf(path);
    const auto isNamed = [&](const std::string& file) {
        return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            return equalIgnoringCase(name, fileNamePart(file));
        });
    };
    for (std::string& file : filesIn(folder.empty() ? "." : folder, isNamed)) {
        addFound(std::move(file));
    }
}

std::optional<Failure> FilesInUse::whyNotTarget(std::span<const std::string> targets) const {
    for (const std::string& target : targets) {
        if (!isThere(target)) {
            continue;  // nothing is lost
        }
        const auto lost = std::find_if(
            files_.begin(), files_.end(), [&target, size = sizeOf(target)](const Used& used) {
                return used.size == size && isSameFile(used.path, target);
            });
        if (lost != files_.end()) {
            return because(TextId::FileCannotBeWritten, {target},
                           {TextId::FileInUse, {lost->path}});
        }
    }
    return std::nullopt;
}

}  // namespace campora
