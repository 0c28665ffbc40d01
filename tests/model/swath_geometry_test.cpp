// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/swath_geometry.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "support/work_records.h"

namespace campora {
namespace {

constexpr double kHalf = 10;
constexpr double kWidth = 2 * kHalf;

void expectNear(LonLat actual, LonLat expected) {
    constexpr double kMillimetre = 0.001 / METERS_PER_DEGREE;
    EXPECT_NEAR(actual.x, expected.x, kMillimetre);
    EXPECT_NEAR(actual.y, expected.y, kMillimetre);
}

TEST(SwathGeometry, CornersStandSquareToOneStepAndAreMitredBetweenTwo) {
    const LonLat start = atMetres(0, 0);
    const LonLat east = atMetres(100, 0);
    // A pass, a point of it, and its left corner in metres from it.
    const std::tuple<const char*, std::vector<LonLat>, std::size_t, LonLat> rows[] = {
        {"eastward start", {start, east}, 0, {0, kHalf}},
        {"southward", {start, atMetres(0, -50)}, 1, {kHalf, 0}},
        {"left turn", {start, east, atMetres(100, 100)}, 1, {-kHalf, kHalf}},
        {"3-4-5 slope", {start, atMetres(40, 30)}, 0, {-6, 8}},
        {"full turn", {start, east, start}, 1, {0, kHalf}},
        {"sharp turn", {start, east, atMetres(10, 10)}, 1, {0, kHalf}},
        {"no step", {start}, 0, {0, 0}},
    };
    for (const auto& [name, pass, point, left] : rows) {
        SCOPED_TRACE(name);
        const LonLat at = pass[point];
        const SwathCorners corners = swathCorners(pass, point, kWidth);
        const LonLat offset = atMetres(left.x, left.y);
        expectNear(corners.left, {at.x + offset.x, at.y + offset.y});
        expectNear(corners.right, {at.x - offset.x, at.y - offset.y});
    }
}

TEST(SwathGeometry, NoCornerLeavesTheGlobe) {
    constexpr double kDamaged = 40'000'000;
    for (const LonLat at : {LonLat{179.9999, 10}, LonLat{-60, 89.9999}, LonLat{10, 90}}) {
        const std::vector<LonLat> pass{at, {at.x - 0.001, at.y - 0.001}};
        for (const LonLat& corner : swathQuad(pass, 0, kDamaged)) {
            EXPECT_LE(std::abs(corner.x), 180);
            EXPECT_LE(std::abs(corner.y), 90);
        }
    }
}

TEST(SwathGeometry, MitresReachOneAndAHalfSwathWidths) {
    // The mitre of a turn by t is 1 / cos(t / 2) half widths long: three of them at 141.06 degrees.
    const auto leftOffset = [](double turnDegrees) {
        const double turn = toRadians(turnDegrees);
        const std::vector<LonLat> pass{atMetres(-100, 0), atMetres(0, 0),
                                       atMetres(100 * std::cos(turn), 100 * std::sin(turn))};
        const LonLat left = swathCorners(pass, 1, kWidth).left;
        return std::hypot(left.x, left.y) * METERS_PER_DEGREE;
    };
    EXPECT_NEAR(leftOffset(141.0), kHalf / std::cos(toRadians(70.5)), 0.001);
    EXPECT_NEAR(leftOffset(141.1), kHalf, 0.001);
    EXPECT_NEAR(leftOffset(-141.1), kHalf, 0.001);
}

TEST(SwathGeometry, KeepsTheWidthOnTheGroundFarFromTheEquator) {
    const std::vector<LonLat> north{{-60, -34}, {-60, -33.99}};
    const SwathCorners corners = swathCorners(north, 0, 20);
    EXPECT_NEAR((corners.right.x - corners.left.x) * METERS_PER_DEGREE * std::cos(toRadians(-34)),
                20, 1e-6);
}

}  // namespace
}  // namespace campora
