// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/colours/color_mode_commands.h"
#include "app/colours/drawing_commands.h"
#include "app/colours/legend_commands.h"

namespace campora {

/// What the map is coloured by, and how it is drawn.
struct Colours {
    /// All of it outlives them.
    Colours(OpenMap& map, MapDisplay& display, SettingsStore& settings)
        : legend(map, display, settings), modes(map, display), drawing(map, display, settings) {}

    LegendCommands legend;
    ColorModeCommands modes;
    DrawingCommands drawing;
};

}  // namespace campora
