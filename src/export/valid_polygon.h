// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

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

}  // namespace campora
