// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/ring_geometry.h"

#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

using Ring = std::vector<LonLat>;

Ring square(double x, double y, double side) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

TEST(RingGeometry, AreaInSquareMetres) {
    const std::tuple<const char*, Ring, float> rows[] = {
        {"square on the equator", square(0, 0, 0.01), 1239214.25F},
        {"at 60 degrees north", square(0, 60, 0.01), 619552.0625F},
        // Far from 0, 0 single precision takes its toll: the exact sum is 1024382.64.
        {"far from the origin", square(-62.5, -34.25, 0.01), 1024564.6875F},
    };
    for (const auto& [name, ring, area] : rows) {
        EXPECT_FLOAT_EQ(polygonArea(ring), area) << name;
        const Ring reversed(ring.rbegin(), ring.rend());
        EXPECT_NEAR(polygonArea(reversed), area, area / 1000) << name << ", reversed";
    }
}

TEST(RingGeometry, AreaInDoubleDoesNotDependOnWhereTheRingLies) {
    const std::tuple<const char*, Ring, double> rows[] = {
        {"nothing", {}, 0},
        {"square on the equator", square(0, 0, 0.01), 1239214.23},
        {"square at 34 degrees south", square(-62, -34, 0.01), 1027415.63},
        {"the same in the north", square(-62, 33.99, 0.01), 1027415.63},
        {"a garden", square(-62, -34, 0.0001), 102.7308},
    };
    for (const auto& [name, ring, area] : rows) {
        EXPECT_NEAR(ringAreaM2(ring), area, 0.005) << name;
        const Ring reversed(ring.rbegin(), ring.rend());
        EXPECT_NEAR(ringAreaM2(reversed), area, 0.005) << name << ", reversed";
    }
}

TEST(RingGeometry, PointInRing) {
    const Ring box = square(0, 0, 2);
    const Ring diamond = {{0, -1}, {1, 0}, {0, 1}, {-1, 0}};
    const Ring cup = {{0, 0}, {3, 0}, {3, 3}, {2, 3}, {2, 1}, {1, 1}, {1, 3}, {0, 3}};
    // The ray from the left runs along the level edge from (1, 1) to (2, 1).
    const Ring step = {{0, 0}, {3, 0}, {3, 2}, {2, 2}, {2, 1}, {1, 1}, {1, 2}, {0, 2}};
    const Ring slanted = {{0, 0}, {10, 1}, {10, 2}, {0, 1}};
    const std::tuple<const char*, const Ring*, LonLat, bool> rows[] = {
        {"level with a side", &box, {-1, 2}, false},
        {"ray through a corner, inside", &diamond, {0, 0}, true},
        {"ray through both corners, outside", &diamond, {-2, 0}, false},
        {"ray touches the top", &diamond, {-1, 1}, false},
        {"between the arms", &cup, {1.5, 2}, false},
        {"in the left arm", &cup, {0.5, 2}, true},
        {"ray along a level edge, inside", &step, {0.5, 1}, true},
        {"ray along a level edge, outside", &step, {-1, 1}, false},
        {"above a slanted edge", &slanted, {8, 1}, true},
    };
    for (const auto& [name, ring, point, inside] : rows) {
        EXPECT_EQ(pointInRing(*ring, point), inside) << name;
        const Ring reversed(ring->rbegin(), ring->rend());
        EXPECT_EQ(pointInRing(reversed, point), inside) << name << ", reversed";
    }
    EXPECT_FALSE(pointInRing({}, {0, 0}));
}

}  // namespace
}  // namespace campora
