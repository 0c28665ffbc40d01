// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/edge_arrow.h"

#include <QPainter>

#include "app/overlay_layout.h"
#include "paint/raster_canvas.h"

namespace campora {

namespace {

constexpr int kUnits = RasterCanvas::kUnitsPerPixel;
constexpr QSize kPicture{overlay::kArrowSize.width / kUnits, overlay::kArrowSize.height / kUnits};

}  // namespace

EdgeArrow::EdgeArrow(MapPicture picture, QWidget* parent)
    : QAbstractButton(parent), picture_(picture) {
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    resize(kPicture);
}

void EdgeArrow::place(CanvasSize canvas) {
    const CanvasPoint corner = overlay::arrowPlace(picture_, canvas);
    move(corner.x / kUnits, corner.y / kUnits);
}

void EdgeArrow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawMapPicture(painter, rect(), picture_);
}

}  // namespace campora
