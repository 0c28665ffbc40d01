// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>

#include "colour/color_scale.h"
#include "model/file.h"
#include "model/map_style.h"
#include "model/value_ranges.h"

namespace campora {

/// Whether the doses of a file are units of seed or the like: those of seeders and of machines that
/// do not say what they are. False for litres; none for a file without work.
[[nodiscard]] std::optional<bool> countsUnits(const File& file);

/// Sets a scale up for the colouring mode in `style`: classes of dose or flow from the least to the
/// greatest loaded value (or, where the style spreads the classes, over all of the worked area but
/// the hundredth at either end), a class a day in the date map, a class a specified dose in the
/// error map. Without loaded values the scale keeps its classes. False, with the scale as it was,
/// for a date map of work without dates.
bool setUpColorScale(ColorScale& scale, const MapStyle& style, const ValueRanges& ranges,
                     std::span<File* const> files);

}  // namespace campora
