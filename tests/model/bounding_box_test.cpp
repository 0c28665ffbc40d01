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

TEST(BoundingBox, TakesInOtherBoxes) {
    const BoundingBox unit{0, 0, 1, 1, 1000, 2000, true};
    const std::tuple<const char*, BoundingBox, BoundingBox, BoundingBox> rows[] = {
        {"an empty box becomes the other", {9, 9, 9, 9, 9, 9, false}, unit, unit},
        {"a candidate of a fraction more is rounded to nothing more",
         unit,
         {0, 0, 1, 1, 1000.4, 2000.4, true},
         unit},
        {"halves go to even",
         {0, 0, 1, 1, 1000.2, 2000.2, true},
         {0, 0, 1, 1, 1000.5, 2001.5, true},
         {0, 0, 1, 1, 1000.2, 2002, true}},
        {"to the south: the cosine is that of the new southern edge",
         {0, 0, 1, 1, 1000, 2000, true},
         {-1, -60, 0, -59, 500, 700, true},
         {-1, -60, 1, 1, 1000 + kDegree / 2, 2000 + 60 * kDegree, true}},
        {"a longer other box counts whole",
         unit,
         {-0.001, -0.001, 1, 1, 250000, 260000, true},
         {-0.001, -0.001, 1, 1, 250000, 260000, true}},
    };
    for (const auto& [name, before, added, expected] : rows) {
        SCOPED_TRACE(name);
        BoundingBox box = before;
        box.addBoundingBox(added);
        expectBox(box, expected);
    }
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
