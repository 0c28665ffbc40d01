// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/lon_lat.h"
#include "base/numbers.h"

namespace campora {

/// Where the corners of what is written may lie.
enum class Corners { Anywhere, OnFineGrid };

/// The place in whole steps of a billionth of a degree, 0.11 mm; halves to even.
[[nodiscard]] inline LonLat onFineGrid(LonLat point) {
    constexpr double kStepsPerDegree = 1e9;
    const auto snapped = [](double degrees) {
        return roundHalfEven(degrees * kStepsPerDegree) / kStepsPerDegree;
    };
    return {snapped(point.x), snapped(point.y)};
}

}  // namespace campora
