// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "base/numbers.h"
#include "model/geodesy.h"

namespace campora {

/// Metres in a degree of longitude as grids count them: whole, at one edge for all rows. 0 at a
/// pole.
[[nodiscard]] inline std::int32_t wholeMetresPerDegree(double latitude) {
    return roundToInt32(cosineOfGridEdge(latitude) * METERS_PER_DEGREE);
}

/// The nearest number of single precision. Not inline: GCC 12 leaves the rounding out where two
/// casts to float and back stand side by side, when it puts them into one vector.
[[nodiscard]] double inSinglePrecision(double value);

}  // namespace campora
