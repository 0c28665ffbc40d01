// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/ring_geometry.h"

#include <cmath>
#include <cstddef>

#include "model/geodesy.h"

namespace campora {

namespace {

struct Metres {
    double x = 0;
    double y = 0;
};

Metres localMetres(LonLat position) {
    return {position.x * METERS_PER_DEGREE * cosineOfSummedArea(position.y),
            position.y * METERS_PER_DEGREE};
}

}  // namespace

float polygonArea(std::span<const LonLat> ring) {
    if (ring.size() < 3) {
        return 0;
    }
    // Single precision: the order of the edges decides the last digits.
    float twiceArea = 0;
    const Metres first = localMetres(ring.front());
    Metres from = first;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Metres to = i + 1 < ring.size() ? localMetres(ring[i + 1]) : first;
        twiceArea = static_cast<float>(twiceArea + (to.y * from.x - to.x * from.y));
        from = to;
    }
    return std::abs(twiceArea / 2);
}

double ringAreaM2(std::span<const LonLat> ring) {
    if (ring.empty()) {
        return 0;
    }
    const LonLat origin = ring.front();
    const auto fromOrigin = [origin](LonLat position) {
        return Metres{(position.x - origin.x) * METERS_PER_DEGREE * cosineOfLatitude(position.y),
                      (position.y - origin.y) * METERS_PER_DEGREE};
    };
    double twiceArea = 0;
    Metres from = fromOrigin(ring.back());
    for (const LonLat& position : ring) {
        const Metres to = fromOrigin(position);
        twiceArea += to.y * from.x - to.x * from.y;
        from = to;
    }
    return std::abs(twiceArea / 2);
}

double ringPerimeter(std::span<const LonLat> ring) {
    double metres = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const LonLat& a = ring[i];
        const LonLat& b = ring[i + 1 < ring.size() ? i + 1 : 0];
        const double perDegree = metresPerDegreeEast((a.y + b.y) / 2);
        metres += std::hypot((b.x - a.x) * perDegree, (b.y - a.y) * METERS_PER_DEGREE);
    }
    return metres;
}

bool pointInRing(std::span<const LonLat> ring, LonLat point) {
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const LonLat& a = ring[i];
        const LonLat& b = ring[i + 1 < ring.size() ? i + 1 : 0];
        // An edge holds its lower end but not its upper one, so that a ray through a corner crosses
        // one of the two edges there; level edges hold nothing.
        if ((a.y > point.y) == (b.y > point.y)) {
            continue;
        }
        if (crossingX(a, b, point.y) > point.x) {
            inside = !inside;
        }
    }
    return inside;
}

}  // namespace campora
