// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>

#include "platform/map_canvas.h"

namespace campora {

/// Whether a figure is wide and high enough that an outline in ink leaves its colour to be seen:
/// both sides of its box, and the narrower side of the rectangle with its area and circumference,
/// are at least `least` canvas units. The second measure does not depend on how the figure lies: a
/// thin strip is thin at every angle and with every bend. Rings within rings are holes when they
/// run the other way.
[[nodiscard]] bool isOutlined(std::span<const std::span<const CanvasPoint>> rings,
                              std::int32_t least);
[[nodiscard]] inline bool isOutlined(std::span<const CanvasPoint> ring, std::int32_t least) {
    return isOutlined(std::span(&ring, 1), least);
}

/// The same for what lies between two sides with as many points each, as a swath does; what is gone
/// over twice counts twice.
[[nodiscard]] bool isOutlined(std::span<const CanvasPoint> left, std::span<const CanvasPoint> right,
                              std::int32_t least);

}  // namespace campora
