// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/still_layer.h"
#include "model/track_data.h"

namespace campora {

/// An open line whose points each carry a record.
class GphPolyLine final : public StillLayer {
public:
    Color color = MapColors().shape;

    /// Appends the point (degrees) with its record; at exactly the last point only the record is
    /// replaced.
    void addPoint(double x, double y, std::unique_ptr<TrackData> data);
    [[nodiscard]] const std::vector<LonLat>& points() const { return points_; }

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphPolyLine"; }
    /// Segments.
    [[nodiscard]] std::int32_t Gph_count() const override;
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    void Gph_plot(MapContext& context) const override;
    /// What the record of point n says; empty for a point without one. Throws `std::out_of_range`
    /// for a bad index.
    [[nodiscard]] std::string Gph_getInfo(const InfoContext& context,
                                          std::int32_t n) const override;

private:
    std::vector<LonLat> points_;
    std::vector<std::unique_ptr<TrackData>> records_;
    BoundingBox bound_;
};

}  // namespace campora
