// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_view.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

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

/// What the user sees: metres a unit, and metres from the south-west corner.
struct View {
    float scale;
    std::int32_t x, y;
};

/// A view of one box, fitted and shown whole; each redraw draws one polygon.
struct MapDesk {
    explicit MapDesk(CanvasSize size = {1000, 500}, const BoundingBox& box = boxOf(2000, 200))
        : canvas(size) {
        view.onControls = [this](const ViewControls& controls) {
            window.setViewControls(controls);
        };
        view.totalBound = box;
        view.fitView();
        view.ZoomUno();
        canvas.forget();
    }

    [[nodiscard]] std::size_t redraws() const { return canvas.callsOf("refresh").size(); }

    MapStyle style;
    RecordingCanvas canvas;
    ScriptedWindow window;
    MapView view{canvas, style, [](MapContext& context) {
                     const CanvasPoint ring[] = {{1, 2}, {3, 4}, {5, 6}};
                     context.canvas.polygon(ring);
                 }};
};

struct MapViewTest : testing::Test, MapDesk {};

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
        {"border of a half metre above an even number", 50, 10, 0.05F, 2, 8, 0.054F},
        {"no height", 1000, 0, 1, 50, 250, 1.1F},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        MapDesk f({1000, 500}, boxOf(row.widthM, row.heightM));
        EXPECT_EQ(f.view.marginX(), row.marginX);
        EXPECT_EQ(f.view.marginY(), row.marginY);
        EXPECT_FLOAT_EQ(f.view.scaleX(), row.shown);
        EXPECT_EQ(f.view.scaleX(), f.view.scaleY());
        f.view.fitView();
        EXPECT_FLOAT_EQ(f.view.scaleX(), row.fitted);
    }
}

TEST(MapView, ShowsASinglePointInTheMiddle) {
    MapDesk f({1000, 500}, boxOf(0, 0));
    EXPECT_FLOAT_EQ(f.view.scaleX(), 0.1F);
    EXPECT_EQ(f.view.transform().mapToScreen(kWest, kSouth), (CanvasPoint{500, 250}));
    EXPECT_EQ(f.view.transform().screenToMap(0, 500), (LonLat{f.view.originX(), f.view.originY()}));
}

TEST_F(MapViewTest, ZoomsToABoxWithABorder) {
    view.zoomToBox(boxOf(100, 100, -59.99, -32.999));
    EXPECT_FLOAT_EQ(view.scaleX(), 0.22F);
    EXPECT_EQ(view.scrollX(), 974);  // 933.62 m east, and 100 of margin, less 60
    EXPECT_EQ(view.scrollY(), 506);  // 111.32 m north, and 400 of margin, less 5
    view.zoomToBox(view.totalBound);
    EXPECT_FLOAT_EQ(view.scaleX(), 2.2F) << "as ZoomUno";
    EXPECT_EQ(view.scrollX(), 0);
}

TEST(MapView, ZoomStepsGoAboutTheCentreAndStayOnTheMap) {
    constexpr float kWhole = 2.2F;
    const std::tuple<const char*, void (MapView::*)(), View, View> rows[] = {
        // A sixth of the 2200 by 1100 metres in view at either side.
        {"in", &MapView::zoomIn, {kWhole, 0, 0}, {kWhole / 1.5F, 367, 183}},
        {"in, just possible", &MapView::zoomIn, {0.0101F, 10, 20}, {0.0101F / 1.5F, 12, 21}},
        {"in, beyond the finest", &MapView::zoomIn, {0.0099F, 10, 20}, {0.0099F, 10, 20}},
        // The eastern end: 2200 - 1650.
        {"out, at the edge", &MapView::zoomOut, {1.1F, 1100, 0}, {1.65F, 550, 0}},
        {"out, to the whole map", &MapView::zoomOut, {kWhole / 1.2F, 50, 60}, {kWhole, 0, 0}},
        {"out, only fitted", &MapView::zoomOut, {2, 0, 0}, {kWhole, 0, 0}},
    };
    for (const auto& [name, step, before, after] : rows) {
        SCOPED_TRACE(name);
        MapDesk f;
        f.view.setView(before.scale, before.scale, before.x, before.y);
        f.canvas.forget();
        (f.view.*step)();
        EXPECT_FLOAT_EQ(f.view.scaleX(), after.scale);
        EXPECT_EQ(f.view.scaleX(), f.view.scaleY());
        EXPECT_EQ(f.view.scrollX(), after.x);
        EXPECT_EQ(f.view.scrollY(), after.y);
        EXPECT_EQ(f.redraws(), before.scale == after.scale ? 0U : 1U);
    }
}

/// What is on the canvas moves at once, by as much as the places that it shows.
TEST_F(MapViewTest, TurningTheWheelMovesThePictureUntilItSettles) {
    view.setView(1, 1, 500, 200);
    canvas.forget();
    const CanvasPoint fixed{730, 40};
    view.zoomPicture(fixed, 2);
    const std::vector<std::string> calls = canvas.calls();
    EXPECT_TRUE(canvas.callsOf("polygon").empty());
    EXPECT_EQ(canvas.callsOf("snapshot").size(), 1U);
    // 730 * (1 - 2.25) and 40 * (1 - 2.25); scrolls are whole metres.
    EXPECT_EQ(canvas.callsOf("paint").back(), "paint snapshot: (-911,-51) x2.250000");
    EXPECT_FLOAT_EQ(view.scaleX(), 1 / 2.25F);
    EXPECT_TRUE(view.isPictureMoved());
    canvas.forget();
    view.settle();
    EXPECT_EQ(canvas.callsOf("polygon").size(), 1U);
    EXPECT_FLOAT_EQ(view.scaleX(), 1 / 2.25F);
    view.settle();
    EXPECT_EQ(redraws(), 1U) << "once";
}

TEST_F(MapViewTest, PositionsGivenToTheWindowDoNotComeBackAsMovements) {
    view.setView(1, 1, 300, 200);
    window.onViewControls = [this] { view.scrollBarsMoved(7, 8); };
    view.updateScrollBars();
    EXPECT_EQ(view.scrollX(), 300);
    EXPECT_EQ(view.scrollY(), 200);
    EXPECT_EQ(redraws(), 1U);
    window.onViewControls = nullptr;
    view.scrollBarsMoved(7, 8);
    EXPECT_EQ(view.scrollX(), 7);
    EXPECT_EQ(view.scrollY(), 492);
}

TEST_F(MapViewTest, WithoutAMapOnlyTheBackgroundIsDrawn) {
    view.forget();
    EXPECT_EQ(window.view, ViewControls{});
    view.fitView();
    view.ZoomUno();
    view.zoomIn();
    view.zoomOut();
    view.zoomToBox(boxOf(10, 10));
    view.scrollBy(1, 1);
    view.scrollBarsMoved(3, 4);
    view.updateScrollBars();
    EXPECT_EQ(redraws(), 0U);
    EXPECT_FALSE(view.transform().isFitted());
    view.refrescar("-1");
    EXPECT_EQ(redraws(), 1U);
    EXPECT_EQ(window.view, ViewControls{});
}

TEST(MapView, ACanvasWithoutAreaFitsNothing) {
    MapDesk f({0, 0});
    EXPECT_FALSE(f.view.transform().isFitted());
    f.canvas.resize({1000, 500});
    f.view.fitView();
    f.view.ZoomUno();
    EXPECT_FLOAT_EQ(f.view.scaleX(), 2.2F);
}

}  // namespace
}  // namespace campora
