// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// Figures are those of a sphere of this size. Against the ellipsoid of WGS 84, lengths to the
/// north are 0.7 % too long at the equator and right at 55 degrees, lengths to the east right at
/// the equator and 0.25 % too short at 60 degrees; areas are 0.7 % too large at the equator, 0.2 %
/// at 35 degrees, and 0.3 % too small at 60.
inline constexpr double METERS_PER_DEGREE = 111320.0;
/// The program's pi, with 15 significant digits: figures must not change with a longer one.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kHalfPi = 1.5707963267949;

[[nodiscard]] constexpr double toRadians(double degrees) {
    return degrees * (kPi / 180);
}

/// Radians, 0 to pi; values beyond -1 and 1 count as -1 and 1.
[[nodiscard]] double arcCos(double x);

/// Metres along the great circle by the spherical law of cosines; degrees, latitude first.
/// For positions in the same hemisphere, east or west of the zero meridian. The rounding of a
/// cosine near 1 leaves up to 0.1 m below a metre, 1 cm at a metre, 1 mm at 10 metres, and so on.
[[nodiscard]] double surfaceDistance(double lat1, double lon1, double lat2, double lon2);

/// Two to three significant digits, never finer than needed and never coarser than units.
[[nodiscard]] double roundSignificant(double x);

}  // namespace campora
