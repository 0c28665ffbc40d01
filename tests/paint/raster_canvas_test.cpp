// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/raster_canvas.h"

#include <algorithm>
#include <array>
#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

constexpr Color kRed = Color::rgb(255, 0, 0);
constexpr Color kBlue = Color::rgb(0, 0, 255);
constexpr Color kBlack = Color::rgb(0, 0, 0);
constexpr int kUnits = RasterCanvas::kUnitsPerPixel;

std::vector<CanvasPoint> square(int left, int top, int right, int bottom) {
    return {{left * kUnits, top * kUnits},
            {right * kUnits, top * kUnits},
            {right * kUnits, bottom * kUnits},
            {left * kUnits, bottom * kUnits}};
}

Color colorAt(const RasterCanvas& canvas, int x, int y) {
    const QColor color = canvas.image().pixelColor(x, y);
    return Color::rgb(color.red(), color.green(), color.blue());
}

TEST(RasterCanvas, IsAsManyPixelsAsItsUnitsAndRatioSay) {
    struct Row {
        CanvasSize size;
        double ratio;
        int width;
        int height;
    };
    const Row rows[] = {
        {{18000, 13500}, 1, 1200, 900},
        {{18000, 13500}, 2, 2400, 1800},
        {{150, 150}, 1.5, 15, 15},
        {{0, 0}, 1, 1, 1},
    };
    for (const Row& row : rows) {
        const RasterCanvas canvas(row.size, row.ratio);
        EXPECT_EQ(canvas.image().width(), row.width);
        EXPECT_EQ(canvas.image().height(), row.height);
        EXPECT_EQ(colorAt(canvas, 0, 0), Color::rgb(255, 255, 255));
    }
}

TEST(RasterCanvas, OutlinesWithThePenAndFillsWithTheFillColour) {
    RasterCanvas canvas({20 * kUnits, 20 * kUnits});
    canvas.setBackgroundColor(kBlue);
    canvas.clear();
    canvas.setPenColor(kBlack);
    canvas.setFillColor(kRed);
    canvas.polygon(square(5, 5, 15, 15));
    EXPECT_EQ(colorAt(canvas, 4, 10), kBlue);
    EXPECT_EQ(colorAt(canvas, 5, 10), kBlack);
    EXPECT_EQ(colorAt(canvas, 10, 10), kRed);
    EXPECT_EQ(colorAt(canvas, 15, 10), kBlack);
    EXPECT_EQ(colorAt(canvas, 16, 10), kBlue);

    canvas.clear();
    canvas.setFillStyle(FillStyle::Transparent);
    canvas.polygon(square(5, 5, 15, 15));
    EXPECT_EQ(colorAt(canvas, 5, 10), kBlack);
    EXPECT_EQ(colorAt(canvas, 10, 10), kBlue);
}

TEST(RasterCanvas, ARingWithinARingIsAHoleWhicheverWayItRuns) {
    std::vector<CanvasPoint> hole = square(6, 6, 14, 14);
    for (int turned = 0; turned < 2; ++turned) {
        RasterCanvas canvas({20 * kUnits, 20 * kUnits});
        canvas.setPenColor(kBlack);
        canvas.setFillColor(kRed);
        const std::vector<CanvasPoint> outer = square(2, 2, 18, 18);
        const std::vector<CanvasPoint> island = square(8, 8, 12, 12);
        const std::array<std::span<const CanvasPoint>, 4> rings{outer, hole, island, {}};
        canvas.polyPolygon(rings);
        EXPECT_EQ(colorAt(canvas, 4, 10), kRed);
        EXPECT_EQ(colorAt(canvas, 6, 10), kBlack);
        EXPECT_EQ(colorAt(canvas, 7, 10), Color::rgb(255, 255, 255));
        EXPECT_EQ(colorAt(canvas, 10, 10), kRed);
        std::reverse(hole.begin(), hole.end());
    }
}

TEST(RasterCanvas, LinesKeepTheirWidthOnADenseScreen) {
    RasterCanvas canvas({20 * kUnits, 20 * kUnits}, 2);
    canvas.line({0, 10 * kUnits}, {19 * kUnits, 10 * kUnits}, kRed);
    int reds = 0;
    for (int y = 0; y < canvas.image().height(); ++y) {
        reds += colorAt(canvas, 20, y) == kRed ? 1 : 0;
    }
    EXPECT_EQ(reds, 2);
}

TEST(RasterCanvas, DrawsAnythingWithoutHarm) {
    RasterCanvas canvas({20 * kUnits, 20 * kUnits});
    constexpr std::int32_t kFar = 2147483647;
    const std::array<CanvasPoint, 3> huge{{{-kFar, -kFar}, {kFar, -kFar}, {0, kFar}}};
    canvas.setFillColor(kRed);
    canvas.polygon(huge);
    EXPECT_EQ(colorAt(canvas, 10, 10), kRed);
    canvas.polygon({});
    canvas.point({kFar, kFar}, kBlue);
    canvas.line({-kFar, 150}, {kFar, 150}, kBlue);
    EXPECT_EQ(colorAt(canvas, 3, 10), kBlue);
}

}  // namespace
}  // namespace campora
