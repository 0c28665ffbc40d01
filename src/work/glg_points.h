// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "base/failure.h"
#include "base/lon_lat.h"

namespace campora {

/// Degrees as the GLG point format keeps them: 2^23 times the radians, rounded halves to even, as
/// sign (top bit) and magnitude.
[[nodiscard]] std::uint32_t toGLGCoordType(double degrees);

/// Writes latitude and longitude of every point of the tracks, 32 bits little-endian each, and
/// nothing else.
[[nodiscard]] std::optional<Failure> exporttoglg(std::string_view path,
                                                 std::span<const std::span<const LonLat>> tracks);

}  // namespace campora
