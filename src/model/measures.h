// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

inline constexpr double kSquareMetresPerHectare = 10'000;
/// Metres a minute at 1 km/h.
inline constexpr double kMetresPerMinutePerKmh = 1000.0 / 60;
/// Metres: the widest swath that the program asks for, takes and believes.
inline constexpr double kWidestSwath = 200;

}  // namespace campora
