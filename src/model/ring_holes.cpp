// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/ring_holes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

#include "model/bounding_box.h"
#include "model/ring_geometry.h"

namespace campora {

namespace {

/// A ring's area against the products of which it is the sum: below this only the last digits of
/// its corners keep them off one line.
constexpr double kNoArea = 1e-9;

struct Outer {
    RingPoints points;
    double area = 0;
    BoundingBox box;
};

BoundingBox boxOf(RingPoints ring) {
    BoundingBox box;
    for (const LonLat& point : ring) {
        box.addPoint(point.x, point.y);
    }
    return box;
}

bool holds(const BoundingBox& box, LonLat point) {
    return point.x >= box.minX && point.x <= box.maxX && point.y >= box.minY && point.y <= box.maxY;
}

/// A place in the ring and on none of its corners' parallels; none when it has no height.
std::optional<LonLat> placeInside(RingPoints ring) {
    std::vector<double> heights;
    heights.reserve(ring.size());
    for (const LonLat& point : ring) {
        heights.push_back(point.y);
    }
    std::sort(heights.begin(), heights.end());
    double gap = 0;
    double y = 0;
    for (std::size_t i = 0; i + 1 < heights.size(); ++i) {
        if (heights[i + 1] - heights[i] > gap) {
            gap = heights[i + 1] - heights[i];
            y = heights[i] + gap / 2;
        }
    }
    std::vector<double> crossings;
    for (std::size_t i = 0; gap > 0 && i < ring.size(); ++i) {
        const LonLat& a = ring[i];
        const LonLat& b = ring[i + 1 < ring.size() ? i + 1 : 0];
        if ((a.y > y) != (b.y > y)) {
            crossings.push_back(crossingX(a, b, y));
        }
    }
    if (crossings.size() < 2) {
        return std::nullopt;
    }
    std::sort(crossings.begin(), crossings.end());
    return LonLat{(crossings[0] + crossings[1]) / 2, y};
}

/// Whether the place, of a ring of that area, lies in a ring that is as large or larger.
bool isWithin(LonLat place, double area, std::span<const Outer> largestFirst) {
    for (const Outer& outer : largestFirst) {
        if (outer.area < area) {
            return false;
        }
        if (holds(outer.box, place) && pointInRing(outer.points, place)) {
            return true;
        }
    }
    return false;
}

}  // namespace

double twiceRingArea(RingPoints ring) {
    if (ring.empty()) {
        return 0;
    }
    // About the first corner, so that small rings far from the origin keep their digits.
    const LonLat origin = ring.front();
    double sum = 0;
    double sizes = 0;
    LonLat from;
    for (const LonLat& corner : ring.subspan(1)) {
        const LonLat to{corner.x - origin.x, corner.y - origin.y};
        sum += from.x * to.y - to.x * from.y;
        sizes += std::abs(from.x * to.y) + std::abs(to.x * from.y);
        from = to;
    }
    return std::abs(sum) > kNoArea * sizes ? sum : 0;
}

std::vector<bool> holesAmong(std::span<const RingPoints> rings) {
    std::vector<double> areas;  // positive against the clock
    double largest = 0;
    for (const RingPoints ring : rings) {
        areas.push_back(twiceRingArea(ring));
        largest = std::abs(areas.back()) > std::abs(largest) ? areas.back() : largest;
    }
    const double turn = largest > 0 ? -1 : 1;
    std::vector<bool> holes;
    std::vector<Outer> outers;
    for (std::size_t i = 0; i < rings.size(); ++i) {
        holes.push_back(areas[i] * turn > 0);
        if (!holes.back()) {
            outers.push_back({rings[i], std::abs(areas[i]), boxOf(rings[i])});
        }
    }
    std::sort(outers.begin(), outers.end(),
              [](const Outer& a, const Outer& b) { return a.area > b.area; });
    for (std::size_t i = 0; i < rings.size(); ++i) {
        if (holes[i]) {
            const std::optional<LonLat> place = placeInside(rings[i]);
            holes[i] = place && isWithin(*place, std::abs(areas[i]), outers);
        }
    }
    return holes;
}

}  // namespace campora
