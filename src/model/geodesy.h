// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

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
/// For positions in the same hemisphere, east or west of the zero meridian.
[[nodiscard]] double surfaceDistance(double lat1, double lon1, double lat2, double lon2);

/// Two to three significant digits, never finer than needed and never coarser than units.
[[nodiscard]] double roundSignificant(double x);

}  // namespace campora
