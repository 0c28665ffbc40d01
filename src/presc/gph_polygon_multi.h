// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "model/still_layer.h"
#include "presc/gph_polygon.h"

namespace campora {

/// What a record of a map draws. Lines and points are there to be looked at: they have no inside.
enum class FigureKind { Zone, Lines, Points };

/// One record of a map: several rings, some of which may be holes, with one dose and one colour.
class GphPolygonMulti final : public StillLayer {
public:
    /// Of lines and points the rings are the lines and the sets of points.
    FigureKind kind = FigureKind::Zone;
    /// False for a zone whose cell of the dose column is blank: ground outside every zone.
    bool hasDose = true;
    float dosis = 0;
    /// Fill.
    Color color = MapColors().shape;

    /// Appends the ring and widens the box; a ring without points has no box.
    void addPolygon(GphPolygon ring);
    [[nodiscard]] const std::vector<GphPolygon>& rings() const { return rings_; }
    /// Whether cells can have their dose from it.
    [[nodiscard]] bool isZone() const { return kind == FigureKind::Zone && hasDose; }
    /// Square metres: the rings in order, holes subtracted; 0 for lines and points.
    [[nodiscard]] float Area() const;
    /// `Gph_mouseOver` for callers that have no view: the last ring that holds the position, -1 in
    /// a hole or outside all.
    [[nodiscard]] std::int32_t ringAt(LonLat position) const;

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphPolygonMulti"; }
    [[nodiscard]] std::int32_t Gph_count() const override { return 1; }
    /// Not set when no ring has a point.
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    /// Whether a line or a point lies within `reach` canvas units of the place; false for zones.
    [[nodiscard]] bool isDrawnNear(const ViewTransform& view, CanvasPoint place,
                                   std::int32_t reach) const;
    /// All rings as one figure, outlined in the map's text colour where it is large enough; holes
    /// stay open. Draws nothing when no part of it can show. Lines and points as such, in the fill
    /// colour; zones without a dose in that of the background.
    void Gph_plot(MapContext& context) const override;
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& view, const MapStyle& style,
                                             LonLat position, std::int32_t start) const override;

private:
    void plotOpen(MapContext& context) const;

    std::vector<GphPolygon> rings_;
    BoundingBox bound_;
};

}  // namespace campora
