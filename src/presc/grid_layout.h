// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/failure.h"
#include "presc/channel_zones.h"
#include "presc/grid_size.h"
#include "presc/zone_raster.h"

namespace campora {

enum class GridKind { Pre, Vrt };

/// Where the cells of a grid lie.
struct GridLayout {
    double metres = 0;
    std::int32_t metresPerDegree = 0;
    /// The outer corner of the first cell, degrees.
    LonLat origin;
    CellCentres centres;

    [[nodiscard]] std::size_t cells() const { return centres.x.size() * centres.y.size(); }
};

/// By what rule the cells of a prescription come to their doses.
struct GridRule {
    GridKind kind = GridKind::Pre;
    /// Side of a cell.
    double metres = 10;
    /// Of the cells without a zone, in the steps of the file, channel 1 first; 0 for channels that
    /// are not there.
    std::vector<std::int16_t> fallback = {};

    bool operator==(const GridRule&) const = default;
};

/// The companion of a larger grid would be no file that the program itself can read.
inline constexpr std::int64_t kMostGridCells = (std::int64_t{1} << 31U) / 32 - 1;

/// Of all channels; not set when none has a point.
[[nodiscard]] BoundingBox boundOf(std::span<const ChannelZones> channels);

/// The grid of a file over the box: a PRE goes from north to south, a VRT from south to north from
/// an origin in single precision.
[[nodiscard]] GridLayout gridLayout(GridKind kind, const BoundingBox& bound, double metres,
                                    const GridSize& size);

}  // namespace campora
