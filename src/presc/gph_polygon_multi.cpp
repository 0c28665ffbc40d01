// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_polygon_multi.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "model/outline_rule.h"

namespace campora {

namespace {

/// Canvas units from the middle of a point's mark to its sides.
constexpr std::int32_t kPointReach = 45;
/// Pixels.
constexpr int kLineWidth = 2;

/// From the place to the segment, canvas units.
double distanceTo(CanvasPoint place, CanvasPoint from, CanvasPoint to) {
    const double dx = static_cast<double>(to.x) - from.x;
    const double dy = static_cast<double>(to.y) - from.y;
    const double px = static_cast<double>(place.x) - from.x;
    const double py = static_cast<double>(place.y) - from.y;
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? std::clamp((px * dx + py * dy) / square, 0.0, 1.0) : 0;
    return std::hypot(px - along * dx, py - along * dy);
}

}  // namespace

void GphPolygonMulti::addPolygon(GphPolygon ring) {
    if (ring.Gph_bound().isSet) {
        bound_.addBoundingBox(ring.Gph_bound());
    }
    rings_.push_back(std::move(ring));
}

float GphPolygonMulti::Area() const {
    float area = 0;
    if (kind != FigureKind::Zone) {
        return area;
    }
    for (const GphPolygon& ring : rings_) {
        area = ring.isHole ? area - ring.Area() : area + ring.Area();
    }
    return area;
}

std::int32_t GphPolygonMulti::ringAt(LonLat position) const {
    std::int32_t found = -1;
    if (kind != FigureKind::Zone) {
        return found;
    }
    for (std::size_t i = rings_.size(); i-- > 0;) {
        if (!rings_[i].holds(position)) {
            continue;
        }
        if (rings_[i].isHole) {
            return -1;
        }
        if (found == -1) {
            found = static_cast<std::int32_t>(i);
        }
    }
    return found;
}

bool GphPolygonMulti::isDrawnNear(const ViewTransform& view, CanvasPoint place,
                                  std::int32_t reach) const {
    if (kind == FigureKind::Zone || !view.isFitted()) {
        return false;
    }
    for (const GphPolygon& ring : rings_) {
        const std::vector<LonLat>& points = ring.points();
        for (std::size_t i = 0; i < points.size(); ++i) {
            const std::size_t before = kind == FigureKind::Lines && i > 0 ? i - 1 : i;
            const CanvasPoint from = view.mapToScreen(points[before].x, points[before].y);
            const CanvasPoint to = view.mapToScreen(points[i].x, points[i].y);
            if (distanceTo(place, from, to) <= reach) {
                return true;
            }
        }
    }
    return false;
}

void GphPolygonMulti::plotOpen(MapContext& context) const {
    MapCanvas& canvas = context.canvas;
    canvas.setPenWidth(kind == FigureKind::Lines ? kLineWidth : 1);
    for (const GphPolygon& ring : rings_) {
        const LonLat* before = nullptr;
        for (const LonLat& point : ring.points()) {
            const CanvasPoint at = context.view.mapToScreen(point.x, point.y);
            const bool isPoint = kind == FigureKind::Points || ring.points().size() == 1;
            if (isPoint && context.view.mayTouch(point, point, 0)) {
                canvas.rectangle({at.x - kPointReach, at.y - kPointReach},
                                 {at.x + kPointReach, at.y + kPointReach}, color,
                                 RectangleStyle::Filled);
            } else if (before != nullptr && context.view.mayTouch(*before, point, 0)) {
                canvas.line(context.view.mapToScreen(before->x, before->y), at, color);
            }
            before = &point;
        }
    }
    canvas.setPenWidth(1);
}

void GphPolygonMulti::Gph_plot(MapContext& context) const {
    if (!context.view.isFitted() || !context.view.mayTouch(bound_, 0)) {
        return;
    }
    if (kind != FigureKind::Zone) {
        plotOpen(context);
        return;
    }
    std::size_t points = 0;
    for (const GphPolygon& ring : rings_) {
        points += ring.points().size();
    }
    std::vector<CanvasPoint> corners;
    corners.reserve(points);
    std::vector<std::span<const CanvasPoint>> rings;
    rings.reserve(rings_.size());
    for (const GphPolygon& ring : rings_) {
        const std::size_t first = corners.size();
        for (const LonLat& point : ring.points()) {
            corners.push_back(context.view.mapToScreen(point.x, point.y));
        }
        rings.emplace_back(std::span(corners).subspan(first));
    }
    const Color ink = context.style.colors.fore;
    const Color fill = hasDose ? color : context.style.colors.back;
    context.canvas.setFillColor(fill);
    context.canvas.setPenColor(isOutlined(rings, context.leastOutlined) ? ink : fill);
    context.canvas.polyPolygon(rings);
    context.canvas.setPenColor(ink);
}

std::int32_t GphPolygonMulti::Gph_mouseOver(const ViewTransform& /*view*/,
                                            const MapStyle& /*style*/, LonLat position,
                                            std::int32_t /*start*/) const {
    return ringAt(position);
}

}  // namespace campora
