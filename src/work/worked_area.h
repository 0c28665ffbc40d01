// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <vector>

#include "colour/color_scale.h"
#include "model/file.h"
#include "model/map_style.h"
#include "model/value_ranges.h"

namespace campora {

/// What was worked with one value: a dose, or litres per minute. Length times width of steps:
/// ground that was worked twice counts twice.
struct ValueArea {
    double value = 0;
    double squareMetres = 0;
};

/// Every step with flow in the open work, by the value that a scale colours under `style`. Doses
/// that are faults of measurement are left out, as they are from ranges.
[[nodiscard]] std::vector<ValueArea> workedArea(const MapStyle& style,
                                                std::span<File* const> files);

/// From the value that a hundredth of the area stays below to the one that a hundredth exceeds;
/// none where that is a single value.
[[nodiscard]] std::optional<ValueRange<float>> middleOfArea(std::vector<ValueArea> areas);

/// The part of the area, 0 to 1, in the class that has most of it; 0 without area.
[[nodiscard]] double largestShare(const ColorScale& scale, std::span<const ValueArea> areas);

}  // namespace campora
