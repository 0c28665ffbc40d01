// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "model/exportable.h"
#include "model/still_layer.h"

namespace campora {

/// A virtual lot: one ring of vertices, in degrees, not stored closed, with a description.
class GphLote final : public StillLayer, public ExportablePolygon {
public:
    GphLote() = default;
    /// `text`: lines ended by CR LF.
    GphLote(std::vector<LonLat> vertices, std::string text);

    /// Lines ended by CR LF.
    std::string description;

    /// Without vertices; the box is empty again.
    void clear();
    void addPoint(double x, double y);
    [[nodiscard]] const std::vector<LonLat>& vertices() const { return vertices_; }
    /// Throw `std::out_of_range` for a bad index.
    [[nodiscard]] double getPointX(std::int32_t i) const;
    [[nodiscard]] double getPointY(std::int32_t i) const;
    [[nodiscard]] std::int32_t getPointCnt() const {
        return static_cast<std::int32_t>(vertices_.size());
    }
    /// Hectares, by `polygonArea` and as exact as it.
    [[nodiscard]] float hectares() const;

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphLote"; }
    [[nodiscard]] std::int32_t Gph_count() const override { return 1; }
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    /// Filled in the colour of lots, hatched where there is more on the map than lots.
    void Gph_plot(MapContext& context) const override;
    /// The outline, in a darker shade.
    void plotOnTop(MapContext& context) const override;
    /// 0 when the position lies inside the ring.
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& view, const MapStyle& style,
                                             LonLat position, std::int32_t start) const override;
    /// What it is and its hectares in the form "#.#"; the last line has no end.
    [[nodiscard]] std::string Gph_getInfo(const InfoContext& context,
                                          std::int32_t n) const override;

    [[nodiscard]] std::int32_t ExportablePolygon_polygonCount() const override { return 1; }
    /// One more than the vertices, because the ring is closed on export; 0 without vertices.
    [[nodiscard]] std::int32_t ExportablePolygon_polygonNCount(const MapStyle& style,
                                                               std::int32_t polygon) const override;
    /// The first vertex for every point behind the last one.
    [[nodiscard]] LonLat ExportablePolygon_polygonNpoint(std::int32_t polygon,
                                                         std::int32_t point) const override;

private:
    void draw(MapContext& context, FillStyle fill, Color pen, int penWidth) const;

    std::vector<LonLat> vertices_;
    BoundingBox bound_;
};

}  // namespace campora
