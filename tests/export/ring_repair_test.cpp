// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/ring_repair.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "export/fine_grid.h"
#include "export/ring_segments.h"
#include "model/ring_geometry.h"

namespace campora {
namespace {

using Ring = std::vector<LonLat>;

std::vector<ValidPolygon> valid(const Ring& ring, Corners corners = Corners::Anywhere) {
    std::vector<ValidPolygon> polygons;
    collectValidPolygons(ring, corners, polygons);
    return polygons;
}

/// Every edge of all rings of the polygons.
std::vector<std::pair<LonLat, LonLat>> edgesOf(const std::vector<ValidPolygon>& polygons) {
    std::vector<std::pair<LonLat, LonLat>> edges;
    const auto add = [&](const ClosedRing& ring) {
        for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
            edges.emplace_back(ring[i], ring[i + 1]);
        }
    };
    for (const ValidPolygon& polygon : polygons) {
        add(polygon.outer);
        std::for_each(polygon.holes.begin(), polygon.holes.end(), add);
    }
    return edges;
}

/// Two edges that share more than an end.
bool cross(const std::pair<LonLat, LonLat>& one, const std::pair<LonLat, LonLat>& other) {
    const int a = turnOf(one.first, one.second, other.first);
    const int b = turnOf(one.first, one.second, other.second);
    const int c = turnOf(other.first, other.second, one.first);
    const int d = turnOf(other.first, other.second, one.second);
    return a * b < 0 && c * d < 0;
}

/// Rings closed, of four points or more, wound the right way, no node twice, no crossings.
void expectSimple(const std::vector<ValidPolygon>& polygons) {
    const auto expectRing = [](const ClosedRing& ring, bool isHole) {
        ASSERT_GE(ring.size(), 4U);
        EXPECT_EQ(ring.front(), ring.back());
        EXPECT_EQ(twiceClosedArea(ring) > 0, isHole);
        for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
            EXPECT_EQ(std::count(ring.begin() + 1, ring.end(), ring[i]), 1);
        }
    };
    for (const ValidPolygon& polygon : polygons) {
        expectRing(polygon.outer, false);
        for (const ClosedRing& hole : polygon.holes) {
            expectRing(hole, true);
        }
    }
    const auto edges = edgesOf(polygons);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        for (std::size_t j = i + 1; j < edges.size(); ++j) {
            EXPECT_FALSE(cross(edges[i], edges[j])) << i << ' ' << j;
        }
    }
}

bool holds(const std::vector<ValidPolygon>& polygons, LonLat point) {
    const auto inside = [&](const ClosedRing& ring) {
        return pointInRing(std::span(ring).first(ring.size() - 1), point);
    };
    return std::any_of(polygons.begin(), polygons.end(), [&](const ValidPolygon& polygon) {
        return inside(polygon.outer) &&
               std::none_of(polygon.holes.begin(), polygon.holes.end(), inside);
    });
}

TEST(ValidPolygons, GiveWhatTheRingEncloses) {
    const std::tuple<const char*, std::size_t, double, Ring> rows[] = {
        {"open square against the clock", 1, 1, {{0, 0}, {1, 0}, {1, 1}, {0, 1}}},
        {"bow tie", 2, 2, {{0, 0}, {2, 2}, {2, 0}, {0, 2}}},
        {"corner on the edge opposite", 2, 4, {{0, 0}, {4, 0}, {4, 2}, {2, 0}, {0, 2}}},
        {"spike outside", 1, 4, {{0, 0}, {2, 0}, {2, 1}, {5, 1}, {2, 1}, {2, 2}, {0, 2}}},
        {"spike along an edge", 1, 4, {{0, 0}, {4, 0}, {2, 0}, {2, 2}, {0, 2}}},
        {"a hole that touches a corner",
         1,
         32,
         {{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 0}, {1, 3}, {3, 1}}},
        {"there and back", 0, 0, {{0, 0}, {1, 1}, {2, 2}, {1, 1}}},
        {"twice round", 0, 0, {{0, 0}, {1, 0}, {1, 1}, {0, 0}, {1, 0}, {1, 1}}},
        {"nothing", 0, 0, {}},
        {"no number", 0, 0, {{0, 0}, {1, 0}, {1, std::nan("")}, {0, 1}}},
    };
    for (const auto& [name, count, expected, ring] : rows) {
        SCOPED_TRACE(name);
        const std::vector<ValidPolygon> polygons = valid(ring);
        expectSimple(polygons);
        EXPECT_EQ(polygons.size(), count);
        double area = 0;
        for (const ValidPolygon& polygon : polygons) {
            area -= twiceClosedArea(polygon.outer) / 2;
            for (const ClosedRing& hole : polygon.holes) {
                area -= twiceClosedArea(hole) / 2;
            }
        }
        EXPECT_NEAR(area, expected, 1e-12);
    }
}

TEST(ValidPolygons, AnyScribbleBecomesSimpleAndKeepsItsSurface) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> somewhere(0, 1);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        Ring ring(static_cast<std::size_t>(4 + round / 4));
        for (LonLat& point : ring) {
            // Every third scribble has its corners on a coarse grid, where much coincides.
            const double grid = round % 3 == 0 ? 4 : 1e6;
            point = {-58 + std::round(somewhere(random) * grid) / grid * 1e-3,
                     -34 + std::round(somewhere(random) * grid) / grid * 1e-3};
        }
        for (const Corners corners : {Corners::Anywhere, Corners::OnFineGrid}) {
            const std::vector<ValidPolygon> polygons = valid(ring, corners);
            expectSimple(polygons);
            for (const auto& [from, to] : edgesOf(polygons)) {
                EXPECT_TRUE(corners == Corners::Anywhere || from == onFineGrid(from));
            }
            for (int i = 0; i < 50; ++i) {
                const LonLat point{-58 + somewhere(random) * 1e-3, -34 + somewhere(random) * 1e-3};
                EXPECT_EQ(holds(polygons, point), pointInRing(ring, point)) << i;
            }
        }
    }
}

}  // namespace
}  // namespace campora
