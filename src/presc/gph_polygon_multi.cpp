// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_polygon_multi.h"

#include <cstddef>
#include <span>
#include <utility>

namespace campora {

void GphPolygonMulti::addPolygon(GphPolygon ring) {
    if (ring.Gph_bound().isSet) {
        bound_.addBoundingBox(ring.Gph_bound());
    }
    rings_.push_back(std::move(ring));
}

float GphPolygonMulti::Area() const {
    float area = 0;
    for (const GphPolygon& ring : rings_) {
        area = ring.isHole ? area - ring.Area() : area + ring.Area();
    }
    return area;
}

std::int32_t GphPolygonMulti::ringAt(LonLat position) const {
    std::int32_t found = -1;
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

void GphPolygonMulti::Gph_plot(MapContext& context) const {
    if (!context.view.isFitted() || !context.view.mayTouch(bound_, 0)) {
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
    context.canvas.setFillColor(color);
    context.canvas.setPenColor(context.style.colors.fore);
    context.canvas.polyPolygon(rings);
}

std::int32_t GphPolygonMulti::Gph_mouseOver(const ViewTransform& /*view*/,
                                            const MapStyle& /*style*/, LonLat position,
                                            std::int32_t /*start*/) const {
    return ringAt(position);
}

std::string GphPolygonMulti::Gph_getInfo(const InfoContext& /*context*/, std::int32_t /*n*/) const {
    return {};
}

}  // namespace campora
