// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/outline_rule.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
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

/// Twice the area of the triangle on that corner, with its sign.
double cross(CanvasPoint corner, CanvasPoint from, CanvasPoint to) {
    // From the corner on, so that the products of far positions stay exact.
    const double x = static_cast<double>(to.x) - corner.x;
    const double y = static_cast<double>(to.y) - corner.y;
    const double fromX = static_cast<double>(from.x) - corner.x;
    const double fromY = static_cast<double>(from.y) - corner.y;
    return fromX * y - x * fromY;
}

double distance(CanvasPoint from, CanvasPoint to) {
    return std::hypot(static_cast<double>(to.x) - from.x, static_cast<double>(to.y) - from.y);
}

/// Sides a <= b of a rectangle: a + b is half its circumference and a * b its area. So a reaches
/// `least` where the area is that of a rectangle of the same circumference with such a side.
bool isWide(double area, double circumference, std::int32_t least) {
    const double bothSides = circumference / 2;
    return bothSides >= 2.0 * least && area >= least * (bothSides - least);
}

}  // namespace

bool isOutlined(Rings rings, std::int32_t least) {
    if (!boxHolds(rings, least)) {
        return false;  // most figures of a dense job
    }
    double twiceArea = 0;
    double circumference = 0;
    for (const auto ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const CanvasPoint next = ring[i + 1 < ring.size() ? i + 1 : 0];
            twiceArea += cross(ring.front(), ring[i], next);
            circumference += distance(ring[i], next);
        }
    }
    return isWide(std::abs(twiceArea) / 2, circumference, least);
}

bool isOutlined(std::span<const CanvasPoint> left, std::span<const CanvasPoint> right,
                std::int32_t least) {
    const std::array<std::span<const CanvasPoint>, 2> sides{left, right};
    if (!boxHolds(sides, least)) {
        return false;
    }
    double twiceArea = 0;
    double circumference =
        distance(left.front(), right.front()) + distance(left.back(), right.back());
    for (std::size_t i = 0; i + 1 < left.size(); ++i) {
        // A triangle at a time: in a turn on the spot the sides cross.
        twiceArea += std::abs(cross(left[i], left[i + 1], right[i + 1])) +
                     std::abs(cross(left[i], right[i + 1], right[i]));
        circumference += distance(left[i], left[i + 1]) + distance(right[i], right[i + 1]);
    }
    return isWide(twiceArea / 2, circumference, least);
}

}  // namespace campora
