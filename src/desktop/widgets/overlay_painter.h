// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPointF>

#include "platform/map_overlay.h"

class QPainter;

namespace campora {

/// A place on the canvas in the pixels of its widget.
[[nodiscard]] QPointF widgetPixels(CanvasPoint point);

/// Paints a shape that lies over the map; `ink`: of the shapes that have no colour of their own. A
/// text plate is a widget and not painted here.
void paintShape(QPainter& painter, const MapShape& shape, const QColor& ink);

}  // namespace campora
