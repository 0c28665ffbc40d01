// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "base/lon_lat.h"
#include "export/fine_grid.h"

namespace campora {

/// 1 when the way from a over b to c turns left, -1 to the right, 0 when the three are on a line as
/// far as 64-bit floats can tell.
[[nodiscard]] int turnOf(LonLat a, LonLat b, LonLat c);

/// Of a ring whose first point stands again at the end: square degrees, positive against the clock;
/// 0 where it is lost in the last digits.
[[nodiscard]] double twiceClosedArea(std::span<const LonLat> ring);

/// The edges of a ring, divided where they meet: two of them share at most an end.
struct SegmentGraph {
    using Edge = std::pair<std::size_t, std::size_t>;  // indices of nodes, the smaller first

    std::vector<LonLat> nodes;
    /// Those that were there an odd number of times; the others part nothing.
    std::vector<Edge> edges;
    /// Nothing was divided and nothing doubled, and no node has more than two edges.
    bool isPlainRing = false;
};

/// `points`: three or more, without a repeated neighbour, the first not again at the end. Takes
/// time with the square of their number in the worst case, next to none more for usual rings.
[[nodiscard]] SegmentGraph dividedSegments(std::span<const LonLat> points, Corners corners);

}  // namespace campora
