// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_scale.h"

#include <array>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(PageScale, ShowsAllOfTheExtentWithAScaleOfThreeDigits) {
    const std::tuple<double, double, double> rows[] = {
        {100, 1234.5, 12400},
        {12.34, 1, 62},
        {1.2345e6, 1, 6180000},
    };
    for (const auto& [widthM, heightM, n] : rows) {
        EXPECT_DOUBLE_EQ(scaleThatShows({{}, widthM, heightM}, {0, 0, 200, 100}), n);
    }
}

TEST(PageScale, TheExtentOfAViewComesBackFromThePage) {
    const ViewTransform screen(0.5F, 0.5F, {-60.5, -33.25}, {12000, 9000});
    const MapExtent extent = shownExtent(screen);
    EXPECT_DOUBLE_EQ(extent.widthM, 6000);
    EXPECT_DOUBLE_EQ(extent.heightM, 4500);
    const CanvasPoint middle = screen.mapToScreen(extent.middle.x, extent.middle.y);
    EXPECT_EQ(middle, (CanvasPoint{6000, 4500}));
}

TEST(PageScale, TheBarIsRoundAndNoLongerThanItsRoom) {
    const std::array<double, 4> rows[] = {
        {10000, 60, 500, 50},  {10000, 50, 500, 50},   {10000, 49, 200, 20},
        {25000, 60, 1000, 40}, {5170, 60, 200, 38.68}, {62, 60, 2, 32.26},
    };
    for (const auto& [n, mostMm, metres, lengthMm] : rows) {
        const ScaleBar bar = roundBar(n, mostMm);
        EXPECT_DOUBLE_EQ(bar.metres, metres) << n;
        EXPECT_NEAR(bar.lengthMm, lengthMm, 0.01) << n;
    }
}

TEST(PageScale, NumbersReadWell) {
    EXPECT_EQ(groupedNumber(1170000), "1\u00A0170\u00A0000");
    EXPECT_EQ(distanceText(2500, ','), "2,5 km");
}

}  // namespace
}  // namespace campora
