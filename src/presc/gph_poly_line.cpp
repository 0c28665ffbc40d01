// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_poly_line.h"

#include <cstddef>
#include <utility>

namespace campora {

void GphPolyLine::addPoint(double x, double y, std::unique_ptr<TrackData> data) {
    const LonLat point{x, y};
    if (!points_.empty() && points_.back() == point) {
        records_.back() = std::move(data);
        return;
    }
    points_.push_back(point);
    records_.push_back(std::move(data));
    bound_.addPoint(x, y);
}

std::int32_t GphPolyLine::Gph_count() const {
    return points_.empty() ? 0 : static_cast<std::int32_t>(points_.size()) - 1;
}

void GphPolyLine::Gph_plot(MapContext& context) const {
    if (points_.size() < 2 || !context.view.isFitted()) {
        return;
    }
    context.canvas.setPenWidth(1);
    for (std::size_t i = 0; i + 1 < points_.size(); ++i) {
        const LonLat& from = points_[i];
        const LonLat& to = points_[i + 1];
        if (context.view.mayTouch(from, to, 0)) {
            context.canvas.line(context.view.mapToScreen(from.x, from.y),
                                context.view.mapToScreen(to.x, to.y), color);
        }
    }
}

std::string GphPolyLine::Gph_getInfo(const InfoContext& context, std::int32_t n) const {
    const std::unique_ptr<TrackData>& record = records_.at(static_cast<std::size_t>(n));
    return record ? record->resumen(context) : std::string();
}

}  // namespace campora
