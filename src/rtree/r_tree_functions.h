// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdint>

namespace campora {

/// A rectangle of whole numbers, closed on all sides.
struct Rectangle {
    std::int32_t xMin = 0;
    std::int32_t xMax = 0;
    std::int32_t yMin = 0;
    std::int32_t yMax = 0;

    bool operator==(const Rectangle&) const = default;
};

/// Differences are computed in 64 bits, so that no rectangle is too large.
[[nodiscard]] inline double rectangleArea(const Rectangle& a) {
    return static_cast<double>(std::int64_t{a.yMax} - a.yMin) *
           static_cast<double>(std::int64_t{a.xMax} - a.xMin);
}

/// The smallest rectangle that holds both.
[[nodiscard]] inline Rectangle covering(const Rectangle& a, const Rectangle& b) {
    return {std::min(a.xMin, b.xMin), std::max(a.xMax, b.xMax), std::min(a.yMin, b.yMin),
            std::max(a.yMax, b.yMax)};
}

/// The area by which `a` would grow to hold `b` too.
[[nodiscard]] inline double enlargement(const Rectangle& a, const Rectangle& b) {
    return rectangleArea(covering(a, b)) - rectangleArea(a);
}

[[nodiscard]] inline bool intervalInside(std::int32_t aMin, std::int32_t aMax, std::int32_t bMin,
                                         std::int32_t bMax) {
    return aMin <= bMin && bMax <= aMax;
}

/// Touching counts.
[[nodiscard]] inline bool intervalOverlap(std::int32_t aMin, std::int32_t aMax, std::int32_t bMin,
                                          std::int32_t bMax) {
    return bMin <= aMax && aMin <= bMax;
}

/// Whether `b` lies inside `a`; edges may touch.
[[nodiscard]] inline bool rectangleInside(const Rectangle& a, const Rectangle& b) {
    return intervalInside(a.xMin, a.xMax, b.xMin, b.xMax) &&
           intervalInside(a.yMin, a.yMax, b.yMin, b.yMax);
}

[[nodiscard]] inline bool rectangleOverlap(const Rectangle& a, const Rectangle& b) {
    return intervalOverlap(a.xMin, a.xMax, b.xMin, b.xMax) &&
           intervalOverlap(a.yMin, a.yMax, b.yMin, b.yMax);
}

}  // namespace campora
