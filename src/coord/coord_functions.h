// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace campora {

/// How positions are shown and typed; the settings hold the numbers.
enum class CoordType { Degrees = 0, DegreesMinutesSeconds = 1, DegreesMinutes = 2 };

/// The degrees carry the sign of the split value; minutes are 0 to below 60.
struct DegreesMinutes {
    double degrees = 0;
    double minutes = 0;
};

/// As `DegreesMinutes`, with whole minutes and seconds from 0 to below 60.
struct DegreesMinutesSeconds {
    double degrees = 0;
    double minutes = 0;
    double seconds = 0;
};

[[nodiscard]] DegreesMinutes toDegreesMinutes(double value);
[[nodiscard]] DegreesMinutesSeconds toDegreesMinutesSeconds(double value);

/// Decimal degrees, negative when `degrees` is; the signs of minutes and seconds do not count.
[[nodiscard]] double fromDegreesMinutesSeconds(double degrees, double minutes, double seconds);

/// Decimal degrees in words ("-34º  15'  0''"), always with "." and a blank before each number from
/// 0 on. Digits beyond the last shown place are cut: six places of degrees, four of minutes, two of
/// seconds. In the forms with minutes the sign is that of the whole degrees.
[[nodiscard]] std::string formatCoord(double value, CoordType type);

}  // namespace campora
