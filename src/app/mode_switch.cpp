// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/mode_switch.h"

#include <utility>

namespace campora {

void showMode(OpenMap& map, MapDisplay& display, ColorMode before) {
    display.showLegend();
    if (before == ColorMode::Error || map.style().mode == ColorMode::Error) {
        recalcErrorAreas(map);
    }
    display.showSummary();  // errors, or what a mode computes, stand there
    display.styleChanged();
}

bool toggleModeLayer(OpenMap& map, MapDisplay& display, ColorMode mode,
                     OpenMap::MakeModeLayer make) {
    const ColorMode before = map.style().mode;
    if (before == mode) {
        map.style().mode = ColorMode::Dose;
        map.refreshColorScale();
    } else if (!map.showModeLayer(mode, std::move(make))) {
        return false;
    }
    showMode(map, display, before);
    return true;
}

}  // namespace campora
