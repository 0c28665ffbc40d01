// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/grid_layout.h"

#include "model/geodesy.h"
#include "model/grid_geometry.h"

namespace campora {

namespace {

constexpr double kMargin = 2;  // cells between the map and the grid's edge

/// North to south.
GridLayout preLayout(const BoundingBox& bound, double metres, const GridSize& size) {
    GridLayout grid{metres, wholeMetresPerDegree(bound.maxY), {}, {}};
    const double perDegree = grid.metresPerDegree;
    const double top = bound.maxY + kMargin * metres / METERS_PER_DEGREE;
    const double left = bound.minX - kMargin * metres / perDegree;
    grid.origin = {left, top};
    for (std::int64_t column = 0; column < size.columns; ++column) {
        const double east = metres * static_cast<double>(column) + metres / 2;
        grid.centres.x.push_back(left + east / perDegree);
    }
    for (std::int64_t row = 0; row < size.rows; ++row) {
        const double south = metres * static_cast<double>(row) + metres / 2;
        grid.centres.y.push_back(top - south / METERS_PER_DEGREE);
    }
    return grid;
}

/// South to north; the origin is the one that the file keeps in single precision.
GridLayout vrtLayout(const BoundingBox& bound, double metres, const GridSize& size) {
    GridLayout grid{metres, wholeMetresPerDegree(bound.minY), {}, {}};
    const double perDegree = grid.metresPerDegree;
    const double west = inSinglePrecision(bound.minX - kMargin * metres / perDegree);
    const double south = inSinglePrecision(bound.minY - kMargin * metres / METERS_PER_DEGREE);
    grid.origin = {west, south};
    for (std::int64_t column = 0; column < size.columns; ++column) {
        const double east = metres * static_cast<double>(column) + metres / 2;
        grid.centres.x.push_back(west + east / perDegree);
    }
    for (std::int64_t row = 0; row < size.rows; ++row) {
        const double north = metres * static_cast<double>(row) + metres / 2;
        grid.centres.y.push_back(south + north / METERS_PER_DEGREE);
    }
    return grid;
}

}  // namespace

BoundingBox boundOf(std::span<const ChannelZones> channels) {
    BoundingBox bound;
    for (const ChannelZones& channel : channels) {
        if (channel.bound.isSet) {
            bound.addBoundingBox(channel.bound);
        }
    }
    return bound;
}

GridLayout gridLayout(GridKind kind, const BoundingBox& bound, double metres,
                      const GridSize& size) {
    return kind == GridKind::Pre ? preLayout(bound, metres, size) : vrtLayout(bound, metres, size);
}

}  // namespace campora
