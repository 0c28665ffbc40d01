// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "base/lon_lat.h"

namespace campora {

/// The two sides of a swath at a point of a pass, degrees.
struct SwathCorners {
    LonLat left;
    LonLat right;
};

/// No corner is farther than this many swath widths from its point.
inline constexpr double kMitreLimit = 1.5;

/// The corners at point `i` of a pass for a swath of `widthMetres`: square to the step at the ends,
/// mitred between two steps. A mitre beyond `kMitreLimit` gives way to the arriving step's own
/// perpendicular. The point alone is both corners when there is no step.
/// No corner leaves the globe, however wide a damaged record makes the swath.
/// Directions are taken in plain degrees; the width holds on the ground, east to west as well.
[[nodiscard]] SwathCorners swathCorners(std::span<const LonLat> pass, std::size_t i,
                                        double widthMetres);

/// As `swathCorners`, with the directions taken on the ground too: what lies between the corners of
/// a straight swath is its length times its width in any direction, where what is drawn is up to
/// 0.5 % smaller at 35 degrees of latitude, and 6 % at 60.
[[nodiscard]] SwathCorners groundSwathCorners(std::span<const LonLat> pass, std::size_t i,
                                              double widthMetres);

/// The corners along a pass, point by point: those of `swathCorners`, with directions and cosines
/// kept from one point for the next.
class SwathSides {
public:
    explicit SwathSides(std::span<const LonLat> pass) : pass_(pass) {}

    /// Cosines: of the latitudes of the corners.
    struct Corners {
        SwathCorners at;
        double leftCosine = 1;
        double rightCosine = 1;
    };
    /// At point `i`, for a swath of that width.
    [[nodiscard]] Corners corners(std::size_t i, double widthMetres);

private:
    /// One unit to the left of the direction of a step.
    struct Side {
        std::size_t step;
        double x;
        double y;
    };

    /// Cosine of a latitude in radians.
    [[nodiscard]] double cosine(double latitude);

    std::span<const LonLat> pass_;
    std::optional<Side> last_;
    // A latitude, and its cosine and sine, from which those of its neighbours follow.
    double latitude_ = 0;
    double cosine_ = 1;
    double sine_ = 0;
};

/// What step `i` (from point i to point i + 1) covers: left and right corner at its end follow the
/// left one at its start, the right one at its start comes last.
[[nodiscard]] std::array<LonLat, 4> swathQuad(std::span<const LonLat> pass, std::size_t i,
                                              double widthMetres);

/// Whether the swath of the step between two points can reach `position`. Cheap; may say yes
/// wrongly, never no.
[[nodiscard]] bool swathMayCover(LonLat from, LonLat to, double widthMetres, LonLat position);

/// Length of a step on the ground, metres, with the cosine of the latitude where it ends: off by
/// some millionths for a step of 10 metres.
[[nodiscard]] double stepMetres(LonLat from, LonLat to);

}  // namespace campora
