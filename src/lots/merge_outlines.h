// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/lon_lat.h"

namespace campora {

using Ring = std::vector<LonLat>;

/// The union of rings.
struct MergedOutlines {
    /// Rings that do not touch, each counter-clockwise and free of crossings, the first point not
    /// repeated, the largest first.
    std::vector<Ring> rings;
    /// For each of them the rings that went into it, as indices of those that were merged.
    std::vector<std::vector<std::size_t>> sources;
    /// Empty places that the union surrounds; the rings go round them.
    int holes = 0;
    /// Rings that counted for nothing.
    int withoutArea = 0;
};

/// The outlines of everything that lies in at least one of the rings. A ring that crosses itself
/// counts with all that it goes round; one of fewer than three points or without area counts for
/// nothing. Degrees; places are told apart to 1e-10 degrees (0.01 mm), and coordinates of at most
/// ten decimals come back unchanged. Points in the middle of a straight line are left out.
[[nodiscard]] MergedOutlines mergeOutlines(std::span<const Ring> rings);

}  // namespace campora
