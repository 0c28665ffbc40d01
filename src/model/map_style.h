// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/color.h"
#include "colour/color_scale.h"

namespace campora {

/// The user's colours of the map.
struct MapColors {
    /// Of steps with flow, where the scale does not colour them, and without.
    Color draw{0xFF8080};
    Color noDraw{0x40FF00};
    Color back{0xFFFFFF};
    /// Of the pen and of texts.
    Color fore{0x000000};
    Color alarm{0x0000FF};
    Color noAlarm{0x00FF00};
    Color shape{0x00FF00};
    Color lot{0x00FFFF};

    bool operator==(const MapColors&) const = default;
};

/// What the colours of work mean. In the last two a layer of their own is drawn in its place:
/// ground covered once or again, what was applied against what was prescribed.
enum class ColorMode { Dose, Alarm, Date, Error, Coverage, Deviation };
enum class GraduatedBy { Hectare, Minute };

/// Everything that decides how layers look. Menus and options change it, records and layers read
/// it.
struct MapStyle {
    MapColors colors;
    /// Also draw and export steps without flow.
    bool drawAll = true;
    /// Steps without flow as a dotted centreline.
    bool drawDotted = false;
    /// Outlines in the canvas's own pen colour instead of the fill colour.
    bool drawBorders = true;

    ColorMode mode = ColorMode::Dose;
    bool graduated = true;
    GraduatedBy by = GraduatedBy::Hectare;
    /// Channel that colours records with several; -1 is the total.
    int selectedChannel = -1;
    /// Percentage from which a record counts as in error.
    float errorLimit = 10;
    Color errorSample{0xFF00FF};
    /// Selected alarms, a bit each: seeders and older reports, sprayers.
    std::array<std::uint32_t, 2> alarmSelection{0xFFFFFFFFU, 0xFFFFFFFFU};
    /// The scale of work in litres, and of everything else without one of its own; not owned; may
    /// be null when no scale is shown.
    const ColorScale* scale = nullptr;
    /// The scale of work in units of seed; not owned; null where `scale` serves that too.
    const ColorScale* unitScale = nullptr;
    /// Classes of dose between the 1st and the 99th percentile of the worked area instead of
    /// between the extremes.
    bool spreadClasses = false;
    /// The dose around which the classes of dose lie instead; none: no such dose.
    std::optional<double> targetDose = std::nullopt;

    /// Whether the legend shows a scale beside the map, whose colours records then take.
    [[nodiscard]] bool scaleShown() const {
        return scale != nullptr && (graduated || mode != ColorMode::Dose);
    }
};

}  // namespace campora
