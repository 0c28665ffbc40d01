// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/read_figure.h"

#include <cstddef>
#include <utility>

namespace campora {

namespace {

FigureKind kindOf(ShapeType type) {
    switch (type) {
    case ShapeType::Point:
    case ShapeType::MultiPoint:
        return FigureKind::Points;
    case ShapeType::PolyLine:
        return FigureKind::Lines;
    case ShapeType::Null:
    case ShapeType::Polygon:
        break;
    }
    return FigureKind::Zone;
}

}  // namespace

GphPolygonMulti readFigure(const ShapeReader& reader) {
    GphPolygonMulti figure;
    figure.kind = kindOf(reader.figureType());
    const std::int32_t parts = reader.partCount();
    for (std::int32_t part = 1; part <= parts; ++part) {
        GphPolygon ring;
        const std::int32_t first = reader.partFirstVertex(part);
        const std::int32_t last = reader.partLastVertex(part);
        ring.reserve(static_cast<std::size_t>(last - first) + 1);
        for (std::int32_t i = first; i <= last; ++i) {
            const LonLat vertex = reader.vertex(i);
            ring.addPoint(vertex.x, vertex.y);
        }
        ring.isHole = parts > 1 && (reader.partRingCode(part) == 1 || reader.partIsHole(part));
        figure.addPolygon(std::move(ring));
    }
    return figure;
}

}  // namespace campora
