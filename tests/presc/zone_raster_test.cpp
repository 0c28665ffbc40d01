// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/zone_raster.h"

#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "rtree/tree_units.h"
#include "support/zone_layers.h"

namespace campora {
namespace {

bool always(std::size_t /*zonesDone*/) {
    return true;
}

/// What a search at a position finds, zone by zone.
std::int32_t zoneAt(const ChannelZones& channel, LonLat position) {
    std::int32_t found = kNoZone;
    for (const std::int32_t zone : channel.order) {
        const GphPolygonMulti& polygon = channel.zones[static_cast<std::size_t>(zone)];
        const BoundingBox& box = polygon.Gph_bound();
        const std::int32_t x = treeUnits(position.x);
        const std::int32_t y = treeUnits(position.y);
        if (x >= treeUnits(box.minX) && x <= treeUnits(box.maxX) && y >= treeUnits(box.minY) &&
            y <= treeUnits(box.maxY) && polygon.ringAt(position) >= 0) {
            found = zone;
        }
    }
    return found;
}

void expectEqualToSearch(const ChannelZones& channel, const CellCentres& centres) {
    const auto owners = zonesUnder(channel, centres, always);
    ASSERT_TRUE(owners.has_value());
    std::size_t found = 0;
    for (std::size_t row = 0; row < centres.y.size(); ++row) {
        for (std::size_t column = 0; column < centres.x.size(); ++column) {
            const std::int32_t expected = zoneAt(channel, {centres.x[column], centres.y[row]});
            ASSERT_EQ((*owners)[row * centres.x.size() + column], expected)
                << "row " << row << ", column " << column;
            found += expected != kNoZone ? 1 : 0;
        }
    }
    EXPECT_GT(found, centres.x.size());
}

std::vector<double> axis(double first, double step, int count) {
    std::vector<double> values;
    for (int i = 0; i < count; ++i) {
        values.push_back(first + step * i);
    }
    return values;
}

/// Rings that cross themselves, touch each other and run through the centres of cells.
ZoneLayer wildZones(unsigned seed, double grid) {
    std::mt19937 random(seed);
    const auto place = [&](double middle, double spread) {
        std::uniform_real_distribution<double> around(middle - spread, middle + spread);
        return std::round(around(random) / grid) * grid;
    };
    const auto ring = [&](LonLat middle, double spread, int corners) {
        std::vector<LonLat> points;
        for (int i = 0; i < corners; ++i) {
            points.push_back({place(middle.x, spread), place(middle.y, spread)});
        }
        return points;
    };
    ZoneLayer layer;
    for (int i = 0; i < 120; ++i) {
        const LonLat middle{place(-60, 0.01), place(-33, 0.01)};
        const double spread = i % 10 == 0 ? 0.008 : 0.002;
        layer.add(static_cast<float>(i), {ring(middle, spread, 3 + i % 9), ring(middle, spread, 4)},
                  {ring(middle, spread / 2, i % 3 == 0 ? 5 : 0)});
    }
    return layer;
}

TEST(ZoneRaster, LaysTheZonesAsASearchOfEveryCellFindsThem) {
    // Degrees between the corners, which may fall on centres, and between the rows of cells.
    for (const auto& [grid, stepY] :
         {std::pair(1e-9, -0.00025), {1e-9, 0.00025}, {0.00025, 0.00025}}) {
        SCOPED_TRACE(testing::Message() << grid << ' ' << stepY);
        ZoneLayer layer = wildZones(7, grid);
        ChannelZones channel = layer.channel();
        std::shuffle(channel.order.begin(), channel.order.end(), std::mt19937(9));
        const double firstY = stepY > 0 ? -33.0125 : -32.9875;
        expectEqualToSearch(channel, {axis(-60.0125, 0.00025, 100), axis(firstY, stepY, 100)});
    }
}

TEST(ZoneRaster, AnEdgeHoldsItsLowerEndAndWhatLiesEastOfIt) {
    ZoneLayer layer;
    layer.add(1, {rectangleRing(1, 1, 3, 3)});
    layer.add(2, {rectangleRing(3, 1, 4, 3)}, {rectangleRing(3, 1, 4, 2)});
    const auto owners = zonesUnder(layer.channel(), {axis(0, 1, 5), axis(3, -1, 4)}, always);
    EXPECT_EQ(owners, (std::vector<std::int32_t>{-1, -1, -1, -1, -1,  //
                                                 -1, 0,  0,  1,  -1,  //
                                                 -1, 0,  0,  -1, -1,  //
                                                 -1, -1, -1, -1, -1}));
}

}  // namespace
}  // namespace campora
