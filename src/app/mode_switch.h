// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/map_display.h"
#include "app/open_map.h"

namespace campora {

/// Shows what the colours of the map mean now: legend, error areas, summary, map. `before`: the
/// mode that was on, perhaps the same.
void showMode(OpenMap& map, MapDisplay& display, ColorMode before);

/// Puts the map into a mode that draws a layer of its own, or back to the doses when it is in that
/// mode, and shows it. False when there is nothing to draw; the map stays as it was then.
bool toggleModeLayer(OpenMap& map, MapDisplay& display, ColorMode mode,
                     OpenMap::MakeModeLayer make);

}  // namespace campora
