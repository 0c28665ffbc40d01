// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>

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

[[nodiscard]] inline double cosineOfLatitude(double degrees) {
    return std::cos(toRadians(degrees));
}

/// Metres in a degree of longitude; `latitude` in degrees.
[[nodiscard]] inline double metresPerDegreeEast(double latitude) {
    return METERS_PER_DEGREE * cosineOfLatitude(latitude);
}

// Three figures multiply by pi before they divide by 180. For some latitudes their cosine differs
// in its last digit from `cosineOfLatitude`, and that digit shows where it is made much of; they
// keep their arithmetic so that the same file gives the same figures and the same bytes for ever.

/// Of a single precision sum of products, whose last digits the order of rounding decides.
[[nodiscard]] inline double cosineOfSummedArea(double degrees) {
    return std::cos(degrees * kPi / 180);
}

/// Of the cells of grids, whose files keep metres of a degree rounded to whole numbers.
[[nodiscard]] inline double cosineOfGridEdge(double degrees) {
    return std::cos(degrees * kPi / 180);
}

/// Of steps between which an angle of exactly a right or a half turn divides a pass.
[[nodiscard]] inline double cosineOfStep(double degrees) {
    return std::cos(degrees * kPi / 180);
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
