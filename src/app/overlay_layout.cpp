// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/overlay_layout.h"

#include <algorithm>

namespace campora::overlay {

namespace {

/// Room between the scale bar and an arrow that a small canvas pushes towards it.
constexpr int kScaleBarRoom = 105;

}  // namespace

CanvasPoint arrowPlace(MapPicture arrow, CanvasSize canvas) {
    const int middleX = (canvas.width - kArrowSize.width) / 2;
    const int middleY = (canvas.height - kArrowSize.height) / 2;
    switch (arrow) {
    case MapPicture::ArrowUp:
        return {std::max(middleX, kTickRightTop.x + kScaleBarRoom), kEdgeDistance};
    case MapPicture::ArrowDown:
        return {middleX, canvas.height - kEdgeDistance - kArrowSize.height};
    case MapPicture::ArrowRight:
        return {canvas.width - kEdgeDistance - kArrowSize.width, middleY};
    case MapPicture::ArrowLeft:
        break;
    }
    return {kEdgeDistance, std::max(middleY, kTickLeftBottom.y + kScaleBarRoom)};
}

}  // namespace campora::overlay
