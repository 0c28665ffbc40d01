// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/exportable.h"
#include "model/still_layer.h"

namespace campora {

/// One ring: its points in order, in degrees.
class GphPolygon final : public StillLayer, public ExportablePolygon {
public:
    /// A ring of more points is not drawn alone.
    static constexpr std::size_t kMostDrawn = 16'383;

    explicit GphPolygon(Color fill = MapColors().shape) : color(fill) {}

    /// Fill.
    Color color;
    /// An inner ring of a record of several rings.
    bool isHole = false;

    void addPoint(double x, double y);
    /// Makes room for this many points in all.
    void reserve(std::size_t points) { points_.reserve(points); }
    /// Without points; the box is empty again.
    void clear();
    [[nodiscard]] const std::vector<LonLat>& points() const { return points_; }
    /// Throw `std::out_of_range` for a bad index.
    [[nodiscard]] double getPointX(std::int32_t i) const;
    [[nodiscard]] double getPointY(std::int32_t i) const;
    [[nodiscard]] CanvasPoint pointToScreen(const ViewTransform& view, std::int32_t i) const;
    /// Whether the position lies inside, by `pointInRing`.
    [[nodiscard]] bool holds(LonLat position) const;
    /// Square metres, as `polygonArea`.
    [[nodiscard]] float Area() const;

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphPolygon"; }
    [[nodiscard]] std::int32_t Gph_count() const override { return 1; }
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    /// Filled with the map's background when it is a hole, with `color` otherwise.
    void Gph_plot(MapContext& context) const override;
    /// 0 when the position lies inside the ring.
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& view, const MapStyle& style,
                                             LonLat position, std::int32_t start) const override;

    [[nodiscard]] std::int32_t ExportablePolygon_polygonCount() const override { return 1; }
    /// One more than the points, because the ring is closed on export.
    [[nodiscard]] std::int32_t ExportablePolygon_polygonNCount(const MapStyle& style,
                                                               std::int32_t polygon) const override;
    [[nodiscard]] LonLat ExportablePolygon_polygonNpoint(std::int32_t polygon,
                                                         std::int32_t point) const override;

private:
    std::vector<LonLat> points_;
    BoundingBox bound_;
};

}  // namespace campora
