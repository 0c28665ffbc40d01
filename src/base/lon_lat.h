// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// A position in decimal degrees: x is the longitude (east positive), y the latitude (north
/// positive).
struct LonLat {
    double x = 0;
    double y = 0;

    bool operator==(const LonLat&) const = default;
};

/// Degrees: the greatest latitude and the greatest longitude of a place.
inline constexpr double kPole = 90;
inline constexpr double kDateLine = 180;

}  // namespace campora
