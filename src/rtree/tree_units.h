// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "base/numbers.h"

namespace campora {

/// A coordinate as the whole number by which zones are searched: ten-millionths of a degree, a
/// centimetre at most, halves to even.
[[nodiscard]] inline std::int32_t treeUnits(double degrees) {
    constexpr double kUnitsPerDegree = 10'000'000;
    return roundToInt32(degrees * kUnitsPerDegree);
}

}  // namespace campora
