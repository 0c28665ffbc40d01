// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/bounding_box.h"

#include <array>

#include <gtest/gtest.h>

#include "base/lon_lat.h"

namespace campora {
namespace {

void expectBox(const BoundingBox& box, const BoundingBox& expected) {
    EXPECT_EQ(box.isSet, expected.isSet);
    EXPECT_EQ((std::array{box.minX, box.minY, box.maxX, box.maxY}),
              (std::array{expected.minX, expected.minY, expected.maxX, expected.maxY}));
    EXPECT_NEAR(box.widthM, expected.widthM, 1e-6);
    EXPECT_NEAR(box.heightM, expected.heightM, 1e-6);
}

constexpr double kDegree = 111320;

TEST(BoundingBox, AWidthIsThatOfTheLatitudeWhereItWasSeen) {
    BoundingBox box;
    for (const LonLat& point : {LonLat{0, 0}, {1, 0}, {1.5, 60}, {-0.5, 0}, {-0.5, -1}}) {
        box.addPoint(point.x, point.y);
    }
    expectBox(box, {-0.5, -1, 1.5, 60, 1.5 * kDegree, 61 * kDegree, true});
}

TEST(BoundingBox, DistanceBetweenCentresInWholeMetres) {
    const BoundingBox here{-61, -35, -59, -33, 0, 0, true};
    const BoundingBox north{-61, -34, -59, -32, 0, 0, true};
    EXPECT_EQ(here.distanceTo(north), 111320);
    EXPECT_EQ(here.distanceTo(here), 0);
    EXPECT_EQ(BoundingBox().distanceTo(BoundingBox{0, 0, 0, 0.00001, 0, 0, true}), 1);
}

}  // namespace
}  // namespace campora
