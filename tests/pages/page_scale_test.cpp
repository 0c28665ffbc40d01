// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_scale.h"

#include <cmath>

#include <gtest/gtest.h>

#include "model/geodesy.h"

namespace campora {
namespace {

constexpr double kMmPerMetre = 1000;

TEST(PageScale, ShowsAllOfTheExtentWithAScaleOfThreeDigits) {
    struct Row {
        const char* name;
        double widthM;
        double heightM;
        double n;
    };
    const Row rows[] = {
        {"wide", 2000, 100, 10000},
        {"high", 100, 1234.5, 12400},
        {"up to the next", 2001, 1, 10100},
        {"small", 12.34, 1, 62},
        {"one point", 0, 0, 1},
        {"a country", 1.2345e6, 1, 6180000},
    };
    for (const Row& row : rows) {
        EXPECT_DOUBLE_EQ(scaleThatShows({{}, row.widthM, row.heightM}, {0, 0, 200, 100}), row.n)
            << row.name;
    }
}

TEST(PageScale, APlaceAKilometreAwayIsThatFarOnPaper) {
    const MapExtent extent{{-60.5, -33.2}, 4000, 3000};
    const PageRect map{10, 30, 180, 150};
    const double n = scaleThatShows(extent, map);
    const ViewTransform view = pageTransform(extent, map, n);
    const CanvasPoint middle = view.mapToScreen(extent.middle.x, extent.middle.y);
    EXPECT_NEAR(middle.x, view.canvas().width / 2.0, 1);
    EXPECT_NEAR(middle.y, view.canvas().height / 2.0, 1);

    const double east = 1000 / (METERS_PER_DEGREE * std::cos(toRadians(extent.middle.y)));
    const CanvasPoint eastOf = view.mapToScreen(extent.middle.x + east, extent.middle.y);
    const double onPaper = (eastOf.x - middle.x) / kUnitsPerPageMm;
    EXPECT_NEAR(onPaper * n / kMmPerMetre, 1000, 1);
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
    struct Row {
        double n;
        double mostMm;
        double metres;
        double lengthMm;
    };
    const Row rows[] = {
        {10000, 60, 500, 50},  {10000, 50, 500, 50},   {10000, 49, 200, 20},
        {25000, 60, 1000, 40}, {5170, 60, 200, 38.68}, {62, 60, 2, 32.26},
    };
    for (const Row& row : rows) {
        const ScaleBar bar = roundBar(row.n, row.mostMm);
        EXPECT_DOUBLE_EQ(bar.metres, row.metres) << row.n;
        EXPECT_NEAR(bar.lengthMm, row.lengthMm, 0.01) << row.n;
    }
}

TEST(PageScale, NumbersReadWell) {
    EXPECT_EQ(groupedNumber(950), "950");
    EXPECT_EQ(groupedNumber(12300), "12\u00A0300");
    EXPECT_EQ(groupedNumber(1170000), "1\u00A0170\u00A0000");
    EXPECT_EQ(distanceText(500, ','), "500 m");
    EXPECT_EQ(distanceText(2500, ','), "2,5 km");
}

}  // namespace
}  // namespace campora
