// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/outline_rule.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace campora {

namespace {

using Rings = std::span<const std::span<const CanvasPoint>>;

bool boxHolds(Rings rings, std::int32_t least) {
    using Limits = std::numeric_limits<std::int32_t>;
    std::int64_t minX = Limits::max();
    std::int64_t minY = Limits::max();
    std::int64_t maxX = Limits::min();
    std::int64_t maxY = Limits::min();
    for (const auto ring : rings) {
        for (const auto& [x, y] : ring) {
            minX = std::min<std::int64_t>(minX, x);
            maxX = std::max<std::int64_t>(maxX, x);
            minY = std::min<std::int64_t>(minY, y);
            maxY = std::max<std::int64_t>(maxY, y);
        }
    }
    return maxX - minX >= least && maxY - minY >= least;
}

}  // namespace

bool isOutlined(Rings rings, std::int32_t least) {
    if (!boxHolds(rings, least)) {
        return false;  // most figures of a dense job
    }
    double twiceArea = 0;
    double circumference = 0;
    for (const auto ring : rings) {
        if (ring.empty()) {
            continue;
        }
        const CanvasPoint* previous = &ring.back();
        for (const CanvasPoint& point : ring) {
            // From the first corner, so that the products of far positions stay exact.
            const double x = static_cast<double>(point.x) - ring.front().x;
            const double y = static_cast<double>(point.y) - ring.front().y;
            const double fromX = static_cast<double>(previous->x) - ring.front().x;
            const double fromY = static_cast<double>(previous->y) - ring.front().y;
            twiceArea += fromX * y - x * fromY;
            circumference += std::hypot(x - fromX, y - fromY);
            previous = &point;
        }
    }
    // Sides a <= b of the rectangle: a + b is half the circumference and a * b the area. So a
    // reaches `least` where the area is that of a rectangle of the same circumference with it.
    const double bothSides = circumference / 2;
    return bothSides >= 2.0 * least && std::abs(twiceArea) / 2 >= least * (bothSides - least);
}

}  // namespace campora
