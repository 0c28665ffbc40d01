// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/merge_outlines.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "lots/ring_crossing.h"

namespace campora {
namespace {

Ring box(double west, double south, double east, double north) {
    return {{west, south}, {east, south}, {east, north}, {west, north}};
}

/// In square degrees; positive against the clock.
double signedArea(const Ring& ring) {
    double twice = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const LonLat& a = ring[i];
        const LonLat& b = ring[(i + 1) % ring.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return twice / 2;
}

Ring backwards(Ring ring) {
    std::reverse(ring.begin(), ring.end());
    return ring;
}

TEST(MergeOutlines, IsTheUnion) {
    const Ring bow = {{0, 0}, {2, 2}, {2, 0}, {0, 2}};
    const Ring pentagram = {
        {0, 1}, {0.588, -0.809}, {-0.951, 0.309}, {0.951, 0.309}, {-0.588, -0.809}};
    const std::tuple<const char*, std::vector<Ring>, std::vector<double>, int> rows[] = {
        {"one within the other, the other way",
         {box(0, 0, 4, 4), backwards(box(1, 1, 2, 2))},
         {16},
         0},
        {"apart, largest first", {box(0, 0, 1, 1), box(5, 5, 7, 7)}, {4, 1}, 0},
        {"a common corner does not join", {box(0, 0, 1, 1), box(1, 1, 2, 2)}, {1, 1}, 0},
        {"a bow has two wings", {bow}, {1, 1}, 0},
        {"the middle of a star counts", {pentagram, box(-0.2, -0.2, 0.2, 0.2)}, {1.1227}, 0},
        {"without area", {{{0, 0}, {1, 1}, {2, 2}}, {}, {{3, 3}}}, {}, 0},
    };
    for (const auto& [name, rings, areas, holes] : rows) {
        SCOPED_TRACE(name);
        const MergedOutlines merged = mergeOutlines(rings);
        EXPECT_EQ(merged.holes, holes);
        ASSERT_EQ(merged.rings.size(), areas.size());
        for (std::size_t i = 0; i < areas.size(); ++i) {
            EXPECT_NEAR(signedArea(merged.rings[i]), areas[i], 1e-4);
            EXPECT_FALSE(ringCrossesItself(merged.rings[i]));
        }
    }
}

TEST(MergeOutlines, CoordinatesComeBackUnchanged) {
    const Ring first = {{-58.1234567891, -34.9876543219}, {-58.0000000001, -34.9}, {-58.05, -34.8}};
    const Ring second = {{179.9999999999, -89.9999999999}, {180, -89.5}, {179.1, -89.3}};
    const MergedOutlines merged = mergeOutlines(std::vector<Ring>{first, second});
    ASSERT_EQ(merged.rings.size(), 2U);
    for (const Ring& ring : {first, second}) {
        EXPECT_TRUE(std::any_of(merged.rings.begin(), merged.rings.end(), [&](const Ring& found) {
            return std::is_permutation(ring.begin(), ring.end(), found.begin(), found.end());
        }));
    }
}

TEST(RingCrossing, FindsWhatMeets) {
    const std::tuple<const char*, Ring, bool> rows[] = {
        {"triangle", {{0, 0}, {1, 0}, {0, 1}}, false},
        {"bow", {{0, 0}, {2, 2}, {2, 0}, {0, 2}}, true},
        {"notch", {{0, 0}, {4, 0}, {4, 4}, {2, 1}, {0, 4}}, false},
        {"a corner on another side", {{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}}, true},
        {"a corner twice", {{0, 0}, {1, 1}, {2, 0}, {2, 2}, {1, 1}, {0, 2}}, true},
        {"a spike", {{0, 0}, {4, 0}, {4, 4}, {4, 2}, {0, 2}}, true},
        {"a point repeated", {{0, 0}, {1, 0}, {1, 0}, {0, 1}, {0, 0}}, false},
        {"all on a line", {{0, 0}, {1, 0}, {2, 0}}, true},
    };
    for (const auto& [name, ring, crosses] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(ringCrossesItself(ring), crosses);
        EXPECT_EQ(ringCrossesItself(backwards(ring)), crosses);
    }
}

}  // namespace
}  // namespace campora
