// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "base/lon_lat.h"
#include "model/view_transform.h"
#include "model/work_layer.h"
#include "platform/map_overlay.h"

namespace campora {

/// The way of the work of a file, of which any part is drawn at once, however many records it has.
class StretchHalo {
public:
    StretchHalo() = default;
    /// They outlive the halo, and their positions stay.
    explicit StretchHalo(std::span<const WorkLayer* const> passes);

    /// Appends the way between two records, counted over all passes: a line for each pass, as far
    /// as it may touch the canvas, no finer than can be seen, and coarser where there is much of
    /// it.
    void addTo(MapOverlay& overlay, std::pair<std::size_t, std::size_t> records,
               const ViewTransform& view) const;

private:
    /// Around some steps that follow each other.
    struct Box {
        LonLat least;
        LonLat greatest;
        /// Where they end.
        LonLat end;
    };
    /// Boxes of `kLeaf` steps, of `kBranch` of these boxes, and so on up to a single one.
    struct Pass {
        const WorkLayer* layer = nullptr;
        std::vector<std::vector<Box>> levels;
    };
    class LineMaker;

    void addLines(LineMaker& maker, std::pair<std::size_t, std::size_t> records) const;

    static constexpr std::size_t kLeaf = 16;
    static constexpr std::size_t kBranch = 4;

    static Pass passOf(const WorkLayer& layer);

    std::vector<Pass> passes_;
};

}  // namespace campora
