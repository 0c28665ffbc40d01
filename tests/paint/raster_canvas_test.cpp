// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/raster_canvas.h"

#include <algorithm>
#include <array>
#include <new>
#include <random>
#include <span>
#include <tuple>
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
    const std::tuple<CanvasSize, double, QSize> rows[] = {
        {{18000, 13500}, 1, {1200, 900}},
        {{18000, 13500}, 2, {2400, 1800}},
        {{0, 0}, 1, {1, 1}},
    };
    for (const auto& [units, ratio, pixels] : rows) {
        const RasterCanvas canvas(units, ratio);
        EXPECT_EQ(canvas.image().size(), pixels);
        EXPECT_EQ(colorAt(canvas, 0, 0), Color::rgb(255, 255, 255));
    }
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

/// Fills and lines of every kind, short and long, across the borders of the parts and beyond the
/// canvas, are the same pixels however the canvas is drawn.
TEST(RasterCanvas, DrawnInPartsItIsTheSamePicture) {
    std::mt19937 random(20260103);
    std::uniform_int_distribution<std::int32_t> place(-200 * kUnits, 500 * kUnits);
    std::uniform_int_distribution<std::int32_t> step(-20 * kUnits, 20 * kUnits);
    std::vector<CanvasPoint> points;
    for (int i = 0; i < 3000; ++i) {
        const bool jumps = i % 6 == 0;
        const CanvasPoint last = jumps ? CanvasPoint{} : points.back();
        points.push_back(jumps ? CanvasPoint{place(random), place(random)}
                               : CanvasPoint{last.x + step(random), last.y + step(random)});
    }
    const auto draw = [&points](MapCanvas& canvas, CanvasRows /*rows*/) {
        for (std::size_t i = 0; i + 12 <= points.size(); i += 6) {
            const auto shade = static_cast<std::uint32_t>(i * 7919);
            canvas.setFillColor({shade & 0xFFFFFFU});
            canvas.setPenColor({~shade & 0xFFFFFFU});
            canvas.setPenWidth(1 + static_cast<int>(i / 6 % 3));
            canvas.setPenStyle(i % 36 == 0 ? PenStyle::Dotted : PenStyle::Solid);
            canvas.setFillStyle(i % 24 == 0 ? FillStyle::Hatched : FillStyle::Solid);
            canvas.polygon(std::span(points).subspan(i, i % 60 == 0 ? 12 : 5));
            canvas.line(points[i], points[i + 1], {shade & 0xFFFFFFU});
        }
    };
    for (const double ratio : {1.0, 1.5}) {
        RasterCanvas whole({300 * kUnits, 400 * kUnits}, ratio);
        RasterCanvas parts({300 * kUnits, 400 * kUnits}, ratio);
        draw(whole, {});
        parts.drawInParts(draw);
        EXPECT_EQ(parts.image(), whole.image());
    }
}

TEST(RasterCanvas, WhatFailsInAPartFailsOutside) {
    RasterCanvas canvas({20 * kUnits, 20 * kUnits});
    EXPECT_THROW(canvas.drawInParts([](MapCanvas&, CanvasRows) { throw std::bad_alloc(); }),
                 std::bad_alloc);
}

TEST(RasterCanvas, DrawsAnythingWithoutHarm) {
    RasterCanvas canvas({20 * kUnits, 20 * kUnits});
    constexpr std::int32_t kFar = 2147483647;
    const std::array<CanvasPoint, 3> huge{{{-kFar, -kFar}, {kFar, -kFar}, {0, kFar}}};
    canvas.setFillColor(kRed);
    canvas.polygon(huge);
    EXPECT_EQ(colorAt(canvas, 10, 10), kRed);
    canvas.line({-kFar, 150}, {kFar, 150}, kBlue);
    EXPECT_EQ(colorAt(canvas, 3, 10), kBlue);
}

}  // namespace
}  // namespace campora
