// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <vector>

#include "base/lon_lat.h"

namespace campora {

/// A closed ring: the first point stands again at the end.
using ClosedRing = std::vector<LonLat>;

/// A surface without crossings: an outer ring, clockwise, and holes, which run against the clock.
struct ValidPolygon {
    ClosedRing outer;
    std::vector<ClosedRing> holes;
};

/// The place in whole steps of a billionth of a degree.
[[nodiscard]] LonLat onFineGrid(LonLat point);

enum class Corners { Anywhere, OnFineGrid };

/// What `ring` (degrees, open or closed, either way round) encloses by the even-odd rule, as simple
/// polygons that touch each other in single points at most ("OpenGIS Simple Features", 6.1.11). A
/// ring that crosses itself gives several; one without area, or with a coordinate that is no
/// number, none. Corners are those of the ring and its crossings with itself.
void collectValidPolygons(std::span<const LonLat> ring, Corners corners,
                          std::vector<ValidPolygon>& polygons);

}  // namespace campora
