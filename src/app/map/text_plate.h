// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"

namespace campora {

/// A box around the lines of `text`, with its top left corner at `at` or as far left and up of it
/// as it must be to stay on the canvas. A box larger than the canvas begins at its corner.
[[nodiscard]] MapOverlay::Info infoBox(const MapCanvas& canvas, CanvasPoint at, std::string text);

}  // namespace campora
