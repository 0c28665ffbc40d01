// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/save_lots.h"

#include <algorithm>

#include "base/file_draft.h"
#include "base/file_endings.h"
#include "base/folder_files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"

namespace campora {

namespace {

/// What stands before and behind the number of a lot that goes into several files.
struct NumberedName {
    std::string_view base;
    std::string_view ending;

    explicit NumberedName(std::string_view path) : base(path), ending(kLotEnding) {
        if (pathEnding(path) == kLotEnding) {
            base = path.substr(0, path.size() - kLotEnding.size());
            ending = path.substr(base.size());
        }
    }
};

}  // namespace

std::vector<std::string> lotPaths(std::string_view path, std::size_t lots) {
    if (lots == 1) {
        return {std::string(path)};
    }
    const NumberedName name(path);
    std::vector<std::string> paths;
    for (std::size_t i = 1; i <= lots; ++i) {
        paths.push_back(
            std::string(name.base).append("-").append(numberText(i)).append(name.ending));
    }
    return paths;
}

std::string olderLots(std::string_view path, std::span<const std::string> saved) {
    const NumberedName name(path);
    const std::string start = lowerCase(std::string(fileNamePart(name.base)).append("-"));
    const auto isOlder = [&](const std::string& file) {
        const std::string lower = lowerCase(fileNamePart(file));
        if (!lower.starts_with(start) || pathEnding(lower) != kLotEnding) {
            return false;
        }
        const std::string_view number = std::string_view(lower).substr(
            start.size(), lower.size() - start.size() - kLotEnding.size());
        return !number.empty() &&
               number.find_first_not_of("0123456789") == std::string_view::npos &&
               std::none_of(saved.begin(), saved.end(),
                            [&](const std::string& one) { return isSameFile(one, file); });
    };
    const std::string folder = folderOf(path);
    std::string names;
    for (const std::string& file : filesIn(folder.empty() ? "." : folder, isOlder)) {
        names.append(names.empty() ? "" : ", ").append(fileNamePart(file));
    }
    return names;
}

Result<std::vector<std::string>> saveLots(std::span<const Lot> lots, std::string_view path) {
    std::vector<std::string> paths = lotPaths(path, lots.size());
    std::vector<FileDraft> files;
    for (std::size_t i = 0; i < lots.size(); ++i) {
        files.emplace_back(paths[i]).write(encodeLot(lots[i].vertices, lots[i].description));
    }
    if (std::optional<Failure> failure = finishTogether(files)) {
        return *failure;
    }
    return paths;
}

}  // namespace campora
