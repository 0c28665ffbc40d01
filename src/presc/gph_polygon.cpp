// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_polygon.h"

#include <stdexcept>

#include "model/outline_rule.h"
#include "model/ring_geometry.h"

namespace campora {

void GphPolygon::addPoint(double x, double y) {
    points_.push_back({x, y});
    bound_.addPoint(x, y);
}

void GphPolygon::clear() {
    points_.clear();
    bound_.clear();
}

double GphPolygon::getPointX(std::int32_t i) const {
    return points_.at(static_cast<std::size_t>(i)).x;
}

double GphPolygon::getPointY(std::int32_t i) const {
    return points_.at(static_cast<std::size_t>(i)).y;
}

CanvasPoint GphPolygon::pointToScreen(const ViewTransform& view, std::int32_t i) const {
    const LonLat& point = points_.at(static_cast<std::size_t>(i));
    return view.mapToScreen(point.x, point.y);
}

float GphPolygon::Area() const {
    return polygonArea(points_);
}

void GphPolygon::Gph_plot(MapContext& context) const {
    if (points_.empty() || points_.size() > kMostDrawn || !context.view.isFitted() ||
        !context.view.mayTouch(bound_, 0)) {
        return;
    }
    std::vector<CanvasPoint> corners;
    corners.reserve(points_.size());
    for (const LonLat& point : points_) {
        corners.push_back(context.view.mapToScreen(point.x, point.y));
    }
    MapCanvas& canvas = context.canvas;
    const Color pen = canvas.penColor();
    const Color fill = isHole ? context.style.colors.back : color;
    canvas.setFillColor(fill);
    canvas.setPenColor(isOutlined(corners, context.leastOutlined) ? pen : fill);
    canvas.polygon(corners);
    canvas.setPenColor(pen);  // others outline with what they find
}

std::int32_t GphPolygon::Gph_mouseOver(const ViewTransform& /*view*/, const MapStyle& /*style*/,
                                       LonLat position, std::int32_t /*start*/) const {
    return holds(position) ? 0 : -1;
}

bool GphPolygon::holds(LonLat position) const {
    // The box first: most rings are elsewhere.
    return bound_.isSet && position.x >= bound_.minX && position.x <= bound_.maxX &&
           position.y >= bound_.minY && position.y <= bound_.maxY && pointInRing(points_, position);
}

std::int32_t GphPolygon::ExportablePolygon_polygonNCount(const MapStyle& /*style*/,
                                                         std::int32_t polygon) const {
    return polygon == 0 ? static_cast<std::int32_t>(points_.size()) + 1 : 0;
}

LonLat GphPolygon::ExportablePolygon_polygonNpoint(std::int32_t polygon, std::int32_t point) const {
    if (polygon != 0) {
        throw std::out_of_range("one polygon");
    }
    const auto index = static_cast<std::size_t>(point);
    return points_.at(index == points_.size() ? 0 : index);
}

}  // namespace campora
