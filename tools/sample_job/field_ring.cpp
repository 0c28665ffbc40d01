// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "sample_job/field_ring.h"

#include <algorithm>
#include <cstddef>

namespace campora::sample {

namespace {

/// Where the edge before a corner and the one after it meet once both have moved `metres` to their
/// right.
Place movedCorner(Place before, Place corner, Place after, double metres) {
    const Place in = direction(corner - before);
    const Place out = direction(after - corner);
    // The sum of the two right-hand normals points along the bisector.
    const Place bisector{in.y + out.y, -in.x - out.x};
    return corner + bisector * (2 * metres / dot(bisector, bisector));
}

}  // namespace

Ring movedInwards(const Ring& ring, double metres) {
    const std::size_t n = ring.size();
    Ring moved;
    moved.reserve(n);
    for (std::size_t i = 0; i < n; ++i) {
        moved.push_back(movedCorner(ring[(i + n - 1) % n], ring[i], ring[(i + 1) % n], metres));
    }
    return moved;
}

std::vector<double> crossings(const Ring& ring, double y) {
    std::vector<double> xs;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Place a = ring[i];
        const Place b = ring[(i + 1) % ring.size()];
        if ((a.y > y) != (b.y > y)) {
            xs.push_back(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
        }
    }
    std::sort(xs.begin(), xs.end());
    return xs;
}

double topOf(const Ring& ring) {
    return std::max_element(ring.begin(), ring.end(), [](Place a, Place b) { return a.y < b.y; })
        ->y;
}

}  // namespace campora::sample
