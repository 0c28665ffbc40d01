// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_polygon.h"

#include <gtest/gtest.h>

#include "presc/gph_poly_line.h"
#include "presc/gph_polygon_multi.h"
#include "support/recording_canvas.h"

namespace campora {
namespace {

/// A square with its lower left corner at (x, y).
GphPolygon square(double x, double y, double side) {
    GphPolygon ring(Color{0x112233});
    ring.addPoint(x, y);
    ring.addPoint(x, y + side);
    ring.addPoint(x + side, y + side);
    ring.addPoint(x + side, y);
    return ring;
}

GphPolygon hole(double x, double y, double side) {
    GphPolygon ring = square(x, y, side);
    ring.isHole = true;
    return ring;
}

/// 111.32 metres are a hundred units; (0, 0) is the lower left corner of 1000 x 1000 units.
struct Drawing {
    RecordingCanvas canvas{{1000, 1000}};
    ViewTransform view{1.1132F, 1.1132F, {0, 0}, {1000, 1000}};
    MapStyle style;
    MapContext context{canvas, view, style};

    std::vector<std::string> of(const Gph& layer) {
        canvas.forget();
        layer.Gph_plot(context);
        return canvas.calls();
    }
};

TEST(GphPolygon, IsClosedOnExport) {
    const GphPolygon ring = square(1, 2, 1);
    const MapStyle style;
    EXPECT_EQ(ring.ExportablePolygon_polygonNCount(style, 0), 5);
    EXPECT_EQ(ring.ExportablePolygon_polygonNCount(style, 1), 0);
    EXPECT_EQ(ring.ExportablePolygon_polygonNpoint(0, 4), (LonLat{1, 2}));
}

struct GphPolygonTest : testing::Test, Drawing {};

TEST_F(GphPolygonTest, DrawsItselfFilled) {
    GphPolygon ring = square(0.001, 0.002, 0.001);
    EXPECT_EQ(ring.pointToScreen(view, 0), (CanvasPoint{100, 800}));
    EXPECT_EQ(of(ring),
              std::vector<std::string>{"polygon fill=0x112233 style=solid pen=0x000000 width=1 "
                                       "solid: (100,800) (100,700) (200,700) (200,800)"});
    ring.isHole = true;
    style.colors.back = {0xABCDEF};
    EXPECT_TRUE(of(ring).at(0).starts_with("polygon fill=0xABCDEF"));
    EXPECT_EQ(of(square(1, 1, 1)).size(), 0U) << "off the canvas";
    EXPECT_TRUE(of(square(0.001, 0.002, 0.0005))
                    .at(0)
                    .starts_with("polygon fill=0x112233 style=solid pen=0x112233"))
        << "too small for ink";
    EXPECT_EQ(canvas.penColor(), Color{0});
}

TEST(GphPolygonMulti, KnowsItsHoles) {
    GphPolygonMulti figure;
    figure.addPolygon(square(0, 0, 10));
    figure.addPolygon(hole(2, 2, 4));
    figure.addPolygon(square(3, 3, 1));  // an island in the hole
    figure.addPolygon(square(7, 7, 6));  // overlaps the first ring
    figure.addPolygon(GphPolygon());
    const std::tuple<const char*, LonLat, int> rows[] = {
        {"in the hole", {5, 5}, -1},
        {"on the island, in the hole", {3.5, 3.5}, -1},
        {"in two rings", {8, 8}, 3},
        {"on its level, beside it", {-1, 5}, -1},
    };
    for (const auto& [name, position, ring] : rows) {
        EXPECT_EQ(figure.Gph_mouseOver(ViewTransform(), MapStyle(), position, 0), ring) << name;
    }
    EXPECT_EQ(figure.Area(), square(0, 0, 10).Area() - hole(2, 2, 4).Area() +
                                 square(3, 3, 1).Area() + square(7, 7, 6).Area());
    EXPECT_EQ(figure.Gph_bound().maxX, 13);
}

TEST(GphPolygonMulti, DrawsAllRingsAsOneFigure) {
    Drawing drawing;
    drawing.style.colors.fore = {0x0A0B0C};
    GphPolygonMulti figure;
    EXPECT_EQ(drawing.of(figure).size(), 0U);
    figure.color = {0x445566};
    figure.addPolygon(square(0.001, 0.001, 0.003));
    figure.addPolygon(hole(0.002, 0.002, 0.001));
    EXPECT_EQ(drawing.of(figure),
              std::vector<std::string>{
                  "polypolygon fill=0x445566 style=solid pen=0x0A0B0C width=1 solid: "
                  "(100,900) (100,600) (400,600) (400,900) / "
                  "(200,800) (200,700) (300,700) (300,800)"});
    drawing.view = {};
    EXPECT_EQ(drawing.of(figure).size(), 0U) << "nothing is fitted";
}

TEST(GphPolyLine, DrawsTheSegmentsThatShow) {
    Drawing drawing;
    drawing.canvas.setPenWidth(3);
    GphPolyLine line;
    line.color = {0x0000FF};
    line.addPoint(0.001, 0.001, nullptr);
    EXPECT_EQ(drawing.of(line).size(), 0U);
    line.addPoint(0.002, 0.001, nullptr);
    line.addPoint(0.002, 1, nullptr);
    line.addPoint(3, 1, nullptr);
    const std::vector<std::string> calls = drawing.of(line);
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0], "line 0x0000FF width=1 solid: (100,900) (200,900)");
}

}  // namespace
}  // namespace campora
