// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/lon_lat.h"
#include "work/gph_track.h"

namespace campora {

/// Consecutive steps of a pass that have the same swath width.
struct SwathGroup {
    std::size_t first = 0;
    std::size_t steps = 0;
    float swathMetres = 0;
    /// Over the points where the steps begin: km/h, litres per minute.
    double sumSpeed = 0;
    double sumFlow = 0;
};

/// The next group from step `from` on; none when the pass has no more. A group has up to
/// `mostSteps` steps (1 or more) and ends where the width changes. With `onlySprayed` points
/// without flow, and the steps from them, are left out and end a group.
[[nodiscard]] std::optional<SwathGroup> nextSwathGroup(const GphTrack& pass, std::size_t from,
                                                       std::size_t mostSteps, bool onlySprayed);

/// What the steps cover, in place of what `ring` holds: the left edge forwards, the right edge
/// back, the first corner again at the end. Groups that follow each other share two corners, those
/// of the map.
void collectSwathRing(const GphTrack& pass, const SwathGroup& group, std::vector<LonLat>& ring);

}  // namespace campora
