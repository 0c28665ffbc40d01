// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/view_transform.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <utility>

#include <gtest/gtest.h>

namespace campora {
namespace {

constexpr double kDegree = 111320;
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

TEST(ViewTransform, DegreesToCanvas) {
    const double nan = std::nan("");
    const std::tuple<const char*, float, LonLat, LonLat, CanvasPoint> rows[] = {
        {"origin is the lower left corner", 1, {-62, -34}, {-62, -34}, {0, 1001}},
        {"cosine of the point's own latitude", 1113.2F, {0, 0}, {1, 60}, {50, -4999}},
        // 0.5 units up round to 0 before they are taken from 1001, and 1.5 to 2.
        {"height is rounded before it is turned round", 222640, {0, 0}, {0, 1}, {0, 1001}},
        {"halves go to even upwards too", 222640, {0, 0}, {0, 3}, {0, 999}},
        {"far east and north", 1, {0, 0}, {1e9, 0}, {kMost, 1001}},
        {"far north", 1, {0, 0}, {0, 1e9}, {0, kLeast + 1002}},
        {"not-a-number", 1, {0, 0}, {nan, nan}, {0, 1001}},
    };
    for (const auto& [name, scale, origin, at, expected] : rows) {
        const ViewTransform view(scale, scale, origin, {1500, 1001});
        const CanvasPoint place = view.mapToScreen(at.x, at.y);
        EXPECT_EQ(place, expected) << name << ": " << place.x << " " << place.y;
    }
}

TEST(ViewTransform, CanvasToDegreesAndBack) {
    const ViewTransform view(0.75F, 0.75F, {-62.5, -34.25}, {18000, 13500});
    for (const auto& [sx, sy] : {std::pair{0, 13500}, {18000, 0}, {1234, 4321}, {-500, 20000}}) {
        const LonLat at = view.screenToMap(static_cast<float>(sx), static_cast<float>(sy));
        EXPECT_EQ(view.mapToScreen(at.x, at.y), (CanvasPoint{sx, sy}));
    }
}

/// Whether a part of the straight line between the places lies on the canvas.
bool shows(CanvasPoint a, CanvasPoint b, CanvasSize canvas) {
    for (double part = 0; part <= 1; part += 0.02) {
        const double x = a.x + part * (b.x - 1.0 * a.x);
        const double y = a.y + part * (b.y - 1.0 * a.y);
        if (x >= 0 && x <= canvas.width && y >= 0 && y <= canvas.height) {
            return true;
        }
    }
    return false;
}

TEST(ViewTransform, LeavesOutOnlyWhatDoesNotShow) {
    std::mt19937 random(2026);
    const auto uniform = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    const CanvasSize canvas{18000, 13500};
    int shown = 0;
    for (int i = 0; i < 20000; ++i) {
        // From a field to far more than the globe, poles included.
        const auto scale = static_cast<float>(std::pow(10, uniform(-1, 5)));
        const LonLat origin{uniform(-180, 180), uniform(-100, 95)};
        const ViewTransform view(scale, scale, origin, canvas);
        const double reach = std::pow(10, uniform(-4, 2));
        const auto near = [&] {
            return LonLat{origin.x + uniform(-reach, reach), origin.y + uniform(-reach, reach)};
        };
        const LonLat from = near();
        const LonLat to = i % 2 == 0 ? near() : LonLat{from.x + uniform(-0.01, 0.01), from.y};
        SCOPED_TRACE(i);
        if (shows(view.mapToScreen(from.x, from.y), view.mapToScreen(to.x, to.y), canvas)) {
            ++shown;
            ASSERT_TRUE(view.mayTouch(from, to, 0));
            BoundingBox box;
            box.addPoint(from.x, from.y);
            box.addPoint(to.x, to.y);
            ASSERT_TRUE(view.mayTouch(box, 0));
        }
    }
    EXPECT_GT(shown, 3000);
}

// Both ends lie far to the right; twelve kilometres nearer the pole the same longitude is on the
// map.
TEST(ViewTransform, LeavesOutWhatLiesBeyondASide) {
    // A kilometre each way; a degree is some 100 km, and what is drawn a pen wider.
    const ViewTransform view(1, 1, {-62, -34}, {1000, 1000});
    const LonLat centre = view.screenToMap(500, 500);
    for (const double reach : {0.0065, -0.0065}) {
        for (const LonLat off :
             {LonLat{centre.x + reach, centre.y}, {centre.x, centre.y + reach}}) {
            EXPECT_FALSE(view.mayTouch(off, off, 20));
            EXPECT_TRUE(view.mayTouch(off, off, 250));
            EXPECT_TRUE(view.mayTouch(off, centre, 0));
        }
    }
}

TEST(ViewTransform, MarginCountsTowardsThePole) {
    const ViewTransform view(10, 10, {0, 89.5}, {1000, 10000});
    ASSERT_EQ(view.mapToScreen(120, 89.89 + 12100 / kDegree).x, 30);
    EXPECT_TRUE(view.mayTouch({120, 89.89}, {120, 89.89}, 12100));
    EXPECT_FALSE(view.mayTouch({120, 89.7}, {120, 89.7}, 1000));
}

}  // namespace
}  // namespace campora
