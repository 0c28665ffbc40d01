// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "findings/coverage_grid.h"
#include "model/still_layer.h"

namespace campora {

/// Told apart without red and green, and on paper without colour.
namespace coverage_colors {
inline constexpr Color kOnce{0xE9B456};     // light blue
inline constexpr Color kTwice{0x009FE6};    // orange
inline constexpr Color kMore{0x1F2BA8};     // dark red
inline constexpr Color kSkipped{0x7A0F4B};  // dark violet
}  // namespace coverage_colors

/// Draws how often ground was covered, and lots as ground that was to be. Pixel by pixel: what a
/// picture costs does not depend on the size of the job.
class CoverageLayer final : public StillLayer {
public:
    CoverageLayer(CoverageGrid grid, std::vector<std::vector<LonLat>> lots);

    [[nodiscard]] std::string_view Gph_kind() const override { return "CoverageLayer"; }
    [[nodiscard]] std::int32_t Gph_count() const override { return 1; }
    /// Of the covered ground.
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    void Gph_plot(MapContext& context) const override;

private:
    void plotLots(MapContext& context) const;
    void plotRow(MapContext& context, std::int32_t top, std::int32_t side) const;
    [[nodiscard]] std::uint8_t cellAt(LatticePoint point, const CoverageGrid::Tile*& last) const;

    CoverageGrid grid_;
    /// Degrees.
    std::vector<std::vector<LonLat>> lots_;
    BoundingBox bound_;
};

}  // namespace campora
