// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/overlay_painter.h"

#include <utility>
#include <variant>

#include <QPainter>
#include <QPolygonF>

#include "desktop/platform/qt_color.h"
#include "paint/raster_canvas.h"

namespace campora {

namespace {

/// Half the side of the frame of a mark, in pixels.
constexpr double kMark = 4;
/// Halves of the marks of a ring's vertices and of the middles of its sides, in pixels.
constexpr double kVertex = 3;
constexpr double kHandle = 3.5;
/// Widths of the two lines of a halo, in pixels.
constexpr double kHaloEdge = 7;
constexpr double kHaloCore = 2;
constexpr QColor kRingEdge(0x3C, 0x4A, 0x50);

QRectF squareAround(QPointF middle, double half) {
    return {middle.x() - half, middle.y() - half, 2 * half, 2 * half};
}

struct ShapePainter {
    QPainter& painter;
    const QColor& ink;

    void operator()(const HandledRing& shape) const;
    void operator()(const DashedBox& box) const {
        painter.setPen(QPen(ink, 1, Qt::DashLine));
        const QPointF extent = widgetPixels({box.size.width, box.size.height});
        painter.drawRect(QRectF(widgetPixels(box.topLeft), QSizeF(extent.x(), extent.y())));
    }
    void operator()(const ThinLine& line) const {
        painter.setPen(QPen(ink, 1));
        painter.drawLine(widgetPixels(line.from), widgetPixels(line.to));
    }
    void operator()(const MarkFrame& mark) const {
        const QPointF middle = widgetPixels(mark.middle);
        painter.setPen(QPen(Qt::white, 3));
        painter.drawRect(squareAround(middle, kMark));
        painter.setPen(QPen(Qt::red, 1));
        painter.drawRect(squareAround(middle, kMark));
        painter.drawPoint(middle);
    }
    void operator()(const TextPlate& /*plate*/) const {}
    void operator()(const HaloLine& halo) const;
};

void ShapePainter::operator()(const HandledRing& shape) const {
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = toQt(shape.color);
    QPolygonF ring;
    for (const CanvasPoint& vertex : shape.vertices) {
        ring << widgetPixels(vertex);
    }
    // Dark below the colour: either shows on every background.
    painter.setPen(QPen(kRingEdge, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(shape.filled ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawPolygon(ring, Qt::WindingFill);
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(ring);
    painter.setPen(QPen(kRingEdge, 1));
    painter.setBrush(QColor(255, 255, 255, 170));
    for (const CanvasPoint& handle : shape.handles) {
        painter.drawEllipse(widgetPixels(handle), kHandle, kHandle);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::white);
    for (const QPointF& middle : ring) {
        painter.drawRect(squareAround(middle, kVertex));
    }
}

void ShapePainter::operator()(const HaloLine& halo) const {
    painter.setRenderHint(QPainter::Antialiasing);
    QPolygonF line;
    for (const CanvasPoint& point : halo.points) {
        line << widgetPixels(point);
    }
    for (const auto& [color, width] :
         {std::pair(Qt::white, kHaloEdge), std::pair(Qt::black, kHaloCore)}) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (line.size() == 1) {
            painter.drawPoint(line.front());
        } else {
            painter.drawPolyline(line);
        }
    }
}

}  // namespace

QPointF widgetPixels(CanvasPoint point) {
    return QPointF(point.x, point.y) / RasterCanvas::kUnitsPerPixel;
}

void paintShape(QPainter& painter, const MapShape& shape, const QColor& ink) {
    painter.save();
    painter.setBrush(Qt::NoBrush);
    std::visit(ShapePainter{painter, ink}, shape);
    painter.restore();
}

}  // namespace campora
