// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/save_lots.h"

#include "base/file_draft.h"
#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

std::vector<std::string> lotPaths(std::string_view path, std::size_t lots) {
    if (lots == 1) {
        return {std::string(path)};
    }
    const bool ended = pathEnding(path) == kLotEnding;
    const std::string_view ending =
        ended ? path.substr(path.size() - kLotEnding.size()) : kLotEnding;
    const std::string_view base = path.substr(0, path.size() - (ended ? kLotEnding.size() : 0));
    std::vector<std::string> paths;
    for (std::size_t i = 1; i <= lots; ++i) {
        paths.push_back(std::string(base).append("-").append(numberText(i)).append(ending));
    }
    return paths;
}

Result<std::vector<std::string>> saveLots(std::span<const LotFile> lots, std::string_view path) {
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
