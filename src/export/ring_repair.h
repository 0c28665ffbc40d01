// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <vector>

#include "base/lon_lat.h"
#include "export/fine_grid.h"
#include "export/valid_polygon.h"

namespace campora {

/// What `ring` (degrees, open or closed, either way round) encloses by the even-odd rule, as simple
/// polygons that touch each other in single points at most ("OpenGIS Simple Features", 6.1.11). A
/// ring that crosses itself gives several; one without area, or with a coordinate that is no
/// number, none. Corners are those of the ring and its crossings with itself.
void collectValidPolygons(std::span<const LonLat> ring, Corners corners,
                          std::vector<ValidPolygon>& polygons);

}  // namespace campora
