// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "base/lon_lat.h"

namespace campora {

/// Area of a closed ring in square metres, never negative. `ring`: degrees, first point not
/// repeated, either direction; fewer than three points give 0. Shoelace sum in single precision
/// with each vertex's own cosine, measured from 0, 0: sixty degrees from there it misses the sphere
/// by up to 0.01 ha in a ring of 100 metres across, 0.1 ha in one of a kilometre, 0.6 ha in one of
/// 5 km.
[[nodiscard]] float polygonArea(std::span<const LonLat> ring);

/// The same in double precision, measured from the ring's first point: the figure does not depend
/// on how far the ring lies from 0, 0, and is the sphere's to a millionth in a ring of 20 km.
[[nodiscard]] double ringAreaM2(std::span<const LonLat> ring);

/// Length of a closed ring in metres, each edge on the flat by the cosine of its mean latitude.
/// `ring` as above; a single point gives 0. The sphere's length to a millionth for edges of 10 km.
[[nodiscard]] double ringPerimeter(std::span<const LonLat> ring);

/// Longitude at which the edge from `a` to `b`, of which one end lies above `y` and the other does
/// not, meets the parallel of `y`.
[[nodiscard]] inline double crossingX(LonLat a, LonLat b, double y) {
    return a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y);
}

/// Even-odd test with a ray towards increasing x; horizontal edges do not count. `ring` as above.
[[nodiscard]] bool pointInRing(std::span<const LonLat> ring, LonLat point);

}  // namespace campora
