// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <vector>

#include "base/lon_lat.h"

namespace campora {

/// A ring as a shapefile holds it: degrees, the first point mostly repeated at the end.
using RingPoints = std::span<const LonLat>;

/// Twice the area in square degrees, positive against the clock; 0 when it is lost in the last
/// digits of the coordinates.
[[nodiscard]] double twiceRingArea(RingPoints ring);

/// Which rings of one record are holes: those that run against the clock. Where the largest would
/// be one, the record is drawn the wrong way round and all directions count the other way. A hole
/// that lies in no other ring of the record would take away nothing: it is an outer ring.
[[nodiscard]] std::vector<bool> holesAmong(std::span<const RingPoints> rings);

}  // namespace campora
