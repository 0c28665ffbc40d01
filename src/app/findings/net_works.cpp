// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/net_works.h"

#include <algorithm>
#include <set>
#include <utility>

namespace campora {

namespace {

std::set<const WorkLayer*> openWork(const LoadedFileList& files) {
    std::set<const WorkLayer*> open;
    for (const File* file : files.all()) {
        const std::vector<const WorkLayer*> layers = workLayers(*file);
        open.insert(layers.begin(), layers.end());
    }
    return open;
}

}  // namespace

std::shared_ptr<const NetWork> NetWorks::of(std::vector<const WorkLayer*> layers,
                                            const LoadedFileList& files) {
    const auto known = std::find_if(known_.begin(), known_.end(), [&](const auto& work) {
        return work->layers() == layers && work->isCurrent();
    });
    if (known != known_.end()) {
        return *known;
    }
    const std::set<const WorkLayer*> open = openWork(files);
    std::erase_if(known_, [&](const auto& work) {
        return work->layers() == layers ||
               !std::all_of(work->layers().begin(), work->layers().end(),
                            [&](const WorkLayer* layer) { return open.contains(layer); });
    });
    return known_.emplace_back(std::make_shared<const NetWork>(std::move(layers)));
}

}  // namespace campora
