// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/work_place.h"

#include <algorithm>

#include "model/work_layer.h"

namespace campora {

namespace {

/// A layer that is replayed.
struct Stretch {
    const File* file;
    /// Null for a layer that has no records.
    const WorkLayer* work;
    std::int64_t steps;
    /// Of the file, before this layer.
    std::size_t recordsBefore;
};

std::vector<Stretch> replayed(const OpenMap& map) {
    std::vector<Stretch> stretches;
    for (const File* file : map.files().all()) {
        std::size_t before = 0;
        for (const Gph* layer : file->File_gphList()) {
            const auto* const work = dynamic_cast<const WorkLayer*>(layer);
            if (layer->Gph_animable()) {
                stretches.push_back({file, work, layer->Gph_count(), before});
            }
            before += work != nullptr ? static_cast<std::size_t>(work->recordCount()) : 0;
        }
    }
    return stretches;
}

}  // namespace

std::optional<std::int32_t> replayPosition(const OpenMap& map, const WorkPlace& place) {
    std::int64_t before = 0;
    for (const Stretch& stretch : replayed(map)) {
        if (stretch.file == place.file && stretch.work != nullptr &&
            place.record >= stretch.recordsBefore) {
            const std::size_t n = place.record - stretch.recordsBefore;
            if (n < static_cast<std::size_t>(stretch.work->recordCount())) {
                const auto step = std::min(static_cast<std::int64_t>(n), stretch.steps - 1);
                return static_cast<std::int32_t>(
                    std::clamp<std::int64_t>(before + step, 0, INT32_MAX));
            }
        }
        before += stretch.steps;
    }
    return std::nullopt;
}

std::optional<WorkPlace> placeInWork(const OpenMap& map, std::int32_t position) {
    std::int64_t left = position;
    for (const Stretch& stretch : replayed(map)) {
        if (left < stretch.steps) {
            return stretch.work == nullptr
                       ? std::nullopt
                       : std::optional(WorkPlace{stretch.file, stretch.recordsBefore +
                                                                   static_cast<std::size_t>(left)});
        }
        left -= stretch.steps;
    }
    return std::nullopt;
}

}  // namespace campora
