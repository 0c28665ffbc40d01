// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_view.h"

#include <cmath>

#include <gtest/gtest.h>

#include "app/overlay_layout.h"
#include "model/geodesy.h"
#include "support/recording_canvas.h"
#include "support/scripted_window.h"

namespace campora {
namespace {

constexpr double kWest = -60;
constexpr double kSouth = -33;

BoundingBox boxOf(double widthM, double heightM, double minX = kWest, double minY = kSouth) {
    BoundingBox box;
    box.minX = minX;
    box.minY = minY;
    box.maxY = minY + heightM / METERS_PER_DEGREE;
    box.maxX = minX + widthM / METERS_PER_DEGREE / std::cos(toRadians(minY));
    box.widthM = widthM;
    box.heightM = heightM;
    box.isSet = true;
    return box;
}

/// A view of one box, fitted and shown whole; each redraw draws one polygon.
struct Fixture {
    explicit Fixture(CanvasSize size = {1000, 500}, const BoundingBox& box = boxOf(2000, 200))
        : canvas(size) {
        view.totalBound = box;
        view.fitView();
        view.ZoomUno();
        canvas.forget();
    }

    [[nodiscard]] std::size_t redraws() const { return canvas.callsOf("refresh").size(); }

    MapStyle style;
    RecordingCanvas canvas;
    ScriptedWindow window;
    MapView view{canvas, window, style, [](MapContext& context) {
                     const CanvasPoint ring[] = {{1, 2}, {3, 4}, {5, 6}};
                     context.canvas.polygon(ring);
                 }};
};

TEST(MapView, FitsTheTightAxisWithABorderAndCentresTheOther) {
    struct Row {
        const char* name;
        double widthM, heightM;
        float fitted;
        std::int32_t marginX, marginY;
        float shown;
    };
    const Row rows[] = {
        {"wider than the canvas", 2000, 200, 2, 100, 400, 2.2F},
        {"taller than the canvas", 100, 1000, 2, 950, 50, 2.2F},
        {"of the canvas's form", 1000, 500, 1, 50, 0, 1.1F},
        {"border of a half metre above an even number", 50, 10, 0.05F, 2, 8, 0.054F},
        {"no height", 1000, 0, 1, 50, 250, 1.1F},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Fixture f({1000, 500}, boxOf(row.widthM, row.heightM));
        EXPECT_EQ(f.view.marginX(), row.marginX);
        EXPECT_EQ(f.view.marginY(), row.marginY);
        EXPECT_FLOAT_EQ(f.view.scaleX(), row.shown);
        EXPECT_EQ(f.view.scaleX(), f.view.scaleY());
        EXPECT_EQ(f.view.maxScale(), f.view.scaleX());
        EXPECT_FALSE(f.window.view.horizontal.visible);
        EXPECT_FALSE(f.window.view.vertical.visible);
        f.view.fitView();
        EXPECT_FLOAT_EQ(f.view.scaleX(), row.fitted);
    }
}

TEST(MapView, PutsTheMarginsBetweenCanvasEdgeAndBox) {
    Fixture f;
    EXPECT_NEAR(f.view.originY(), kSouth - 400 / METERS_PER_DEGREE, 1e-12);
    const double cosine = std::cos(toRadians(f.view.originY()));
    EXPECT_NEAR(f.view.originX(), kWest - 100 / METERS_PER_DEGREE / cosine, 1e-12);
    EXPECT_FLOAT_EQ(f.view.viewWidthM(), 2200);
    EXPECT_FLOAT_EQ(f.view.viewHeightM(), 1100);
}

TEST(MapView, ShowsASinglePointInTheMiddle) {
    Fixture f({1000, 500}, boxOf(0, 0));
    EXPECT_FLOAT_EQ(f.view.scaleX(), 0.1F);
    EXPECT_EQ(f.view.transform().mapToScreen(kWest, kSouth), (CanvasPoint{500, 250}));
    f.view.totalBound = boxOf(2000, 200);
    f.view.fitView();
    f.view.zoomToBox(boxOf(0, 0));
    EXPECT_EQ(f.view.transform().mapToScreen(kWest, kSouth), (CanvasPoint{500, 250}));
}

TEST(MapView, ZoomsToABoxWithABorder) {
    Fixture f;
    f.view.zoomToBox(boxOf(100, 100, -59.99, -32.999));
    EXPECT_FLOAT_EQ(f.view.scaleX(), 0.22F);
    EXPECT_EQ(f.view.scrollX(), 974);  // 933.62 m east, and 100 of margin, less 60
    EXPECT_EQ(f.view.scrollY(), 506);  // 111.32 m north, and 400 of margin, less 5
    f.view.zoomToBox(boxOf(400, 100, -59.99, -32.999));
    EXPECT_FLOAT_EQ(f.view.scaleX(), 0.44F);
    EXPECT_EQ(f.view.scrollX(), 1014);
    EXPECT_EQ(f.view.scrollY(), 451);
    EXPECT_EQ(f.redraws(), 2U);
}

TEST(MapView, ZoomToTheTotalBoxIsZoomUno) {
    Fixture f;
    f.view.zoomIn();
    f.view.zoomToBox(f.view.totalBound);
    EXPECT_FLOAT_EQ(f.view.scaleX(), 2.2F);
    EXPECT_EQ(f.view.scrollX(), 0);
    EXPECT_EQ(f.view.scrollY(), 0);
}

TEST(MapView, ZoomsInAboutTheCentre) {
    Fixture f;
    f.view.zoomIn();
    EXPECT_FLOAT_EQ(f.view.scaleX(), 2.2F / 1.5F);
    EXPECT_EQ(f.view.scrollX(), 367);  // a sixth of 2200
    EXPECT_EQ(f.view.scrollY(), 183);  // a sixth of 1100
}

TEST(MapView, CentresOnAPosition) {
    Fixture f;
    f.view.zoomToBox(boxOf(100, 100, -59.99, -32.999));
    const LonLat place{-59.993, -32.9995};
    f.view.centreOn(place);
    EXPECT_FLOAT_EQ(f.view.scaleX(), 0.22F);
    const CanvasPoint at = f.view.transform().mapToScreen(place.x, place.y);
    EXPECT_NEAR(at.x, 500, 3);  // scrolling goes by whole metres
    EXPECT_NEAR(at.y, 250, 3);
}

TEST(MapView, ZoomingInEndsAtTheFinestScale) {
    struct Row {
        const char* name;
        float before, after;
    };
    const Row rows[] = {
        {"just possible", 0.15F, 0.15F / 1.5F},
        {"beyond", 0.14F, 0.14F},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Fixture f;
        f.view.setView(row.before, row.before, 10, 20);
        f.canvas.forget();
        f.view.zoomIn();
        EXPECT_EQ(f.view.scaleX(), row.after);
        EXPECT_EQ(f.redraws(), row.before == row.after ? 0U : 1U);
    }
}

TEST(MapView, AFieldCanBeLookedAtClosely) {
    Fixture f;
    f.view.totalBound = {};
    f.view.totalBound.addPoint(-60, -33);
    f.view.totalBound.addPoint(-59.99, -32.99);  // a kilometre
    f.canvas.resize({13500, 10500});
    f.view.fitView();
    f.view.ZoomUno();
    const float whole = f.view.scaleX();
    for (int i = 0; i < 20; ++i) {
        f.view.zoomIn();
    }
    EXPECT_LT(f.view.scaleX(), whole / 7);
    EXPECT_GE(f.view.scaleX(), 0.1F / 15) << "a tenth of a metre a pixel";
    f.view.zoomToRectangle({0, 0}, {});
    EXPECT_FLOAT_EQ(f.view.scaleX(), 0.1F / 15);
}

TEST(MapView, ZoomStepsKeepTheirFixedPoint) {
    for (const CanvasPoint fixed : {CanvasPoint{500, 250}, {0, 0}, {1000, 500}, {730, 40}}) {
        SCOPED_TRACE(testing::Message() << fixed.x << ',' << fixed.y);
        Fixture f;
        f.view.setView(0.4F, 0.4F, 900, 450);
        const auto x = static_cast<float>(fixed.x);
        const auto y = static_cast<float>(fixed.y);
        const LonLat place = f.view.transform().screenToMap(x, y);
        const auto expectPlace = [&] {
            // Scrolls are whole metres, which is up to half a metre off.
            const LonLat now = f.view.transform().screenToMap(x, y);
            EXPECT_NEAR(now.x, place.x, 1.1 / METERS_PER_DEGREE);
            EXPECT_NEAR(now.y, place.y, 1.1 / METERS_PER_DEGREE);
        };
        f.view.zoomIn(fixed);
        EXPECT_FLOAT_EQ(f.view.scaleX(), 0.4F / 1.5F);
        expectPlace();
        f.view.zoomOut(fixed);
        EXPECT_FLOAT_EQ(f.view.scaleX(), 0.4F);
        expectPlace();
    }
}

TEST(MapView, ZoomingOutStaysOnTheMap) {
    Fixture f;
    f.view.setView(1.1F, 1.1F, 1100, 0);
    f.view.zoomOut();
    EXPECT_FLOAT_EQ(f.view.scaleX(), 1.65F);
    EXPECT_EQ(f.view.scrollX(), 550);  // the eastern end: 2200 - 1650
    EXPECT_EQ(f.view.scrollY(), 0);    // not -138
}

TEST(MapView, ZoomingOutStopsAtTheWholeMap) {
    Fixture f;
    const float whole = f.view.maxScale();
    f.view.setView(whole / 1.2F, whole / 1.2F, 50, 60);
    f.view.zoomOut();
    EXPECT_EQ(f.view.scaleX(), whole);
    EXPECT_EQ(f.view.scaleY(), whole);
    EXPECT_EQ(f.view.scrollX(), 0);
    EXPECT_EQ(f.view.scrollY(), 0);
}

TEST(MapView, ZoomingOutOfAViewThatWasOnlyFittedShowsTheWholeMap) {
    Fixture f;
    f.view.forget();
    f.view.totalBound = boxOf(2000, 200);
    f.view.fitView();
    f.view.zoomOut();
    EXPECT_FLOAT_EQ(f.view.scaleX(), 2.2F);
}

TEST(MapView, ScrollBarsCoverTheRange) {
    struct Row {
        const char* name;
        float scale;
        bool visible;
        std::int32_t maximum;
        float factor;
    };
    // The extent is 45818 m and 2291 m of margin at either end: 50400 m.
    const Row rows[] = {
        {"nothing to scroll", 126, false, 1, 1},
        {"one metre", 125.9975F, true, 1, 1},
        {"a step a metre", 44.0825F, true, 32767, 1},
        {"the first range too long", 44.08F, true, 32767, 32768 / 32767.0F},
        {"fifty kilometres", 1, true, 32767, 50000 / 32767.0F},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Fixture f({1000, 400}, boxOf(100, 45818));
        f.view.setView(row.scale, row.scale, 0, 0);
        f.view.updateScrollBars();
        EXPECT_EQ(f.window.view.vertical.visible, row.visible);
        EXPECT_EQ(f.window.view.vertical.maximum, row.maximum);
        EXPECT_EQ(f.window.view.vertical.position, row.maximum);
        EXPECT_FLOAT_EQ(f.view.scrollFactorY(), row.factor);
    }
}

TEST(MapView, TheVerticalBarRunsFromNorthToSouth) {
    Fixture f({1000, 400}, boxOf(100, 45818));
    f.view.setView(1, 1, 0, 0);
    f.view.updateScrollBars();
    f.view.scrollBarsMoved(0, 0);
    EXPECT_NEAR(f.view.scrollY(), 50000, 1);
    EXPECT_EQ(f.window.view.vertical.position, 0);
    f.view.scrollBarsMoved(0, 32767);
    EXPECT_EQ(f.view.scrollY(), 0);
    EXPECT_EQ(f.window.view.vertical.position, 32767);
    EXPECT_EQ(f.redraws(), 3U);
}

TEST(MapView, AnAxisWithNothingToScrollGoesBackToZero) {
    Fixture f;
    f.view.setView(2.2F, 2.2F, 30, 40);
    f.view.updateScrollBars();
    EXPECT_EQ(f.view.scrollX(), 0);
    EXPECT_EQ(f.view.scrollY(), 0);
}

TEST(MapView, ArrowsPointToMoreMap) {
    struct Row {
        const char* name;
        std::int32_t scrollX, scrollY;
        EdgeArrows arrows;
    };
    // At one metre a unit the range is 1200 east and 500 north.
    const Row rows[] = {
        {"south-west corner", 0, 0, {.up = true, .right = true}},
        {"north-east corner", 1200, 500, {.down = true, .left = true}},
        {"a metre from either end", 1, 499, {true, true, true, true}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Fixture f;
        f.view.setView(1, 1, row.scrollX, row.scrollY);
        f.view.updateScrollBars();
        EXPECT_EQ(f.window.view.arrows, row.arrows);
    }
}

TEST(MapView, TheScaleBarTellsItsMetres) {
    Fixture f;
    EXPECT_EQ(f.window.view.scaleLabel, "2376m");
    f.view.setView(10, 10, 0, 0);
    f.view.updateScrollBars();
    EXPECT_EQ(f.window.view.scaleLabel, "10800m");
}

TEST(MapView, PositionsGivenToTheWindowDoNotComeBackAsMovements) {
    Fixture f;
    f.view.setView(1, 1, 300, 200);
    f.window.onViewControls = [&f] { f.view.scrollBarsMoved(7, 8); };
    f.view.updateScrollBars();
    EXPECT_EQ(f.view.scrollX(), 300);
    EXPECT_EQ(f.view.scrollY(), 200);
    EXPECT_EQ(f.redraws(), 1U);
    f.window.onViewControls = nullptr;
    f.view.scrollBarsMoved(7, 8);
    EXPECT_EQ(f.view.scrollX(), 7);
    EXPECT_EQ(f.view.scrollY(), 492);
}

TEST(MapView, ScrollsByPartsOfTheCanvasWithinTheMap) {
    Fixture f;
    f.view.setView(1, 1, 0, 0);
    f.view.updateScrollBars();
    f.view.scrollBy(0.25, 0.1);
    EXPECT_EQ(f.view.scrollX(), 250);
    EXPECT_EQ(f.view.scrollY(), 50);
    f.view.scrollBy(5, 5);
    EXPECT_EQ(f.view.scrollX(), 1200);
    EXPECT_EQ(f.view.scrollY(), 500);
    f.view.scrollBy(-5, -5);
    EXPECT_EQ(f.view.scrollX(), 0);
    EXPECT_EQ(f.view.scrollY(), 0);
}

TEST(MapView, ARedrawClearsSetsColoursAndDrawsEverything) {
    Fixture f;
    f.style.colors.draw = {0x112233};
    f.style.colors.fore = {0x445566};
    f.canvas.setPenWidth(5);
    f.canvas.setFillStyle(FillStyle::Transparent);
    f.view.setView(1, 1, 0, 0);
    const std::vector<std::string> expected = {
        "clear 0xFFFFFF",
        "polygon fill=0x112233 style=solid pen=0x445566 width=1 solid: (1,2) (3,4) (5,6)",
        "refresh",
    };
    EXPECT_EQ(f.canvas.calls(), expected);
}

TEST(MapView, RefrescarTakesTheGivenBackgroundOrTheUsersOwn) {
    Fixture f;
    f.style.colors.back = {0xABCDEF};
    f.view.setView(1, 1, 30, 40);
    f.view.refrescar("255");
    f.view.refrescar("-1");
    EXPECT_EQ(f.canvas.callsOf("clear"),
              (std::vector<std::string>{"clear 0xFFFFFF", "clear 0x0000FF", "clear 0xABCDEF"}));
    EXPECT_EQ(f.view.scaleX(), 1);
    EXPECT_EQ(f.view.scrollX(), 30);
    EXPECT_EQ(f.view.scrollY(), 40);
}

TEST(MapView, DrawsScaleBarAndArrowsIntoThePicture) {
    Fixture f;
    f.style.colors.fore = {0x102030};
    f.view.setView(1, 1, 5, 0);
    f.view.updateScrollBars();
    f.canvas.forget();
    f.view.DrawMap();
    const std::vector<std::string> expected = {
        "line 0x102030 width=1 solid: (105,360) (105,600)",
        "line 0x102030 width=1 solid: (1200,360) (1200,600)",
        "line 0x102030 width=2 solid: (120,480) (1200,480)",
        "text pen=0x102030 top-centre bold: (660,105) \"1080m\"",
        "picture up: (1305,5) 240x240",
        "picture right: (755,130) 240x240",
        "picture left: (5,705) 240x240",
    };
    EXPECT_EQ(f.canvas.calls(), expected);
}

TEST(MapView, WithoutAMapOnlyTheBackgroundIsDrawn) {
    Fixture f;
    f.view.forget();
    EXPECT_EQ(f.window.view, ViewControls{});
    f.view.fitView();
    f.view.ZoomUno();
    f.view.zoomIn();
    f.view.zoomOut();
    f.view.zoomToBox(boxOf(10, 10));
    f.view.scrollBy(1, 1);
    f.view.scrollBarsMoved(3, 4);
    f.view.updateScrollBars();
    EXPECT_EQ(f.redraws(), 0U);
    EXPECT_FALSE(f.view.transform().isFitted());
    f.view.refrescar("-1");
    EXPECT_EQ(f.redraws(), 1U);
    EXPECT_EQ(f.window.view, ViewControls{});
}

TEST(MapView, ACanvasWithoutAreaFitsNothing) {
    Fixture f({0, 0});
    EXPECT_FALSE(f.view.transform().isFitted());
    f.canvas.resize({1000, 500});
    f.view.fitView();
    f.view.ZoomUno();
    EXPECT_FLOAT_EQ(f.view.scaleX(), 2.2F);
}

TEST(OverlayLayout, ArrowsStandAtTheirEdgesClearOfTheScaleBar) {
    for (const CanvasSize canvas : {CanvasSize{18000, 13500}, {5000, 5000}, {2000, 1500}}) {
        SCOPED_TRACE(testing::Message() << canvas.width << 'x' << canvas.height);
        const int size = overlay::kArrowSize.width;
        const CanvasPoint right = overlay::arrowPlace(MapPicture::ArrowRight, canvas);
        const CanvasPoint down = overlay::arrowPlace(MapPicture::ArrowDown, canvas);
        EXPECT_EQ(right, (CanvasPoint{canvas.width - 5 - size, (canvas.height - size) / 2}));
        EXPECT_EQ(down, (CanvasPoint{(canvas.width - size) / 2, canvas.height - 5 - size}));
        const CanvasPoint up = overlay::arrowPlace(MapPicture::ArrowUp, canvas);
        EXPECT_EQ(up.y, 5);
        EXPECT_GT(up.x, overlay::kTickRightTop.x);
        EXPECT_LE(up.x + size, canvas.width);
        const CanvasPoint left = overlay::arrowPlace(MapPicture::ArrowLeft, canvas);
        EXPECT_EQ(left.x, 5);
        EXPECT_GT(left.y, overlay::kTickLeftBottom.y);
        EXPECT_LE(left.y + size, canvas.height);
    }
}

}  // namespace
}  // namespace campora
