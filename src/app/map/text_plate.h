// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "platform/map_canvas.h"
#include "platform/map_overlay.h"

namespace campora {

/// A plate around the lines of `text`, with its top left corner at `at` or as far left and up of it
/// as it must be to stay on the canvas. A plate larger than the canvas begins at its corner.
[[nodiscard]] TextPlate textPlate(const MapCanvas& canvas, CanvasPoint at, std::string text);

}  // namespace campora
