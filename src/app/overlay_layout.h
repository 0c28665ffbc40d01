// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/map_canvas.h"

namespace campora {

/// Where the scale bar and the edge arrows lie on the canvas, in canvas units.
namespace overlay {

inline constexpr CanvasPoint kTickLeftTop{105, 360};
inline constexpr CanvasPoint kTickLeftBottom{105, 600};
inline constexpr CanvasPoint kTickRightTop{1200, 360};
inline constexpr CanvasPoint kTickRightBottom{1200, 600};
inline constexpr CanvasPoint kBarLeft{120, 480};
inline constexpr CanvasPoint kBarRight{1200, 480};
/// Middle of the top edge of the scale bar's text.
inline constexpr CanvasPoint kLabelTop{660, 105};

inline constexpr CanvasSize kArrowSize{240, 240};
/// Distance of the right arrow from the right edge, of the down arrow from the bottom edge.
inline constexpr int kEdgeDistance = 5;

/// Top left corner of an arrow on a canvas of that size.
[[nodiscard]] CanvasPoint arrowPlace(MapPicture arrow, CanvasSize canvas);

}  // namespace overlay
}  // namespace campora
