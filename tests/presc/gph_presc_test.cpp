// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_presc.h"

#include <algorithm>
#include <tuple>

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "support/recording_canvas.h"
#include "support/scripted_platform.h"
#include "support/zone_map.h"

namespace campora {
namespace {

using Values = std::vector<double>;

struct PrescTest : testing::Test {
    std::string write(const ZoneMap& map) const { return map.write(folder, "lote"); }
    bool load(const ZoneMap& map) { return presc.loadFromFile(write(map), desk); }
    /// Upper bounds of the classes.
    [[nodiscard]] Values scale() const {
        Values values;
        for (const Clase& clase : presc.escalaColor().classes()) {
            values.push_back(clase.upper);
        }
        return values;
    }
    [[nodiscard]] Values doses() const {
        Values values;
        for (const GphPolygonMulti& polygon : presc.polygons()) {
            values.push_back(polygon.dosis);
        }
        return values;
    }
    TempFolder folder;
    ScriptedDialogs dialogs;
    Texts texts;
    FixedLocale locale{','};
    Desk desk{dialogs, texts, locale};
    MapStyle style;
    GphPresc presc;
};

TEST_F(PrescTest, CollectsTheDistinctDosesOfEveryNumericColumn) {
    ASSERT_TRUE(load({{"DOSIS", "MIXTA", "VACIA"},
                      {{{squareAt({0, 0}, 1)}, {" 5 ", "1", "1"}},
                       {{squareAt({1, 0}, 1)}, {"3", "1e1", "2"}},
                       {{squareAt({2, 0}, 1)}, {"5", "2x", ""}},
                       {{squareAt({3, 0}, 1)}, {"4", "7", "3"}}}}));
    EXPECT_EQ(presc.columnNames(), (std::vector<std::string>{"DOSIS", "MIXTA", "VACIA"}));
    EXPECT_EQ(presc.dosisCollection(1), (Values{0, 3, 4, 5}));
    for (const int column : {-1, 0, 2, 3, 4}) {
        EXPECT_FALSE(presc.columnaNumeric(column)) << column;
        EXPECT_TRUE(presc.dosisCollection(column).empty()) << column;
        presc.setColumnaDosis(column);
        EXPECT_EQ(presc.columnaDosis(), GphPresc::kNoColumn) << column;
    }
}

TEST_F(PrescTest, ARecordCountsOncePerPart) {
    ASSERT_TRUE(load({{"DOSIS"},
                      {{{squareAt({0, 0}, 1), holeAt({0.2, 0.2}, 0.1)}, {"10"}},
                       {{squareAt({1, 0}, 1)}, {"40"}},
                       {{}, {"no"}}}}));
    presc.setColumnaDosis(1);
    ASSERT_NE(presc.currentDosisSet(), nullptr);  // an empty record has no say
    EXPECT_EQ(presc.currentDosisSet()->sum(), 60);
    EXPECT_EQ(presc.currentDosisSet()->getRealAverage(), 15);
    EXPECT_EQ(presc.Gph_count(), 3);
    EXPECT_EQ(presc.searchOrder(), (std::vector<std::int32_t>{0, 1}));
}

TEST_F(PrescTest, DosesChangeByClassAndByZone) {
    ASSERT_TRUE(load(rowOfZones({"100", "50", "100"})));
    presc.setColumnaDosis(1);
    EXPECT_FALSE(presc.escalaColor().setClassValue(2, 120));
    EXPECT_EQ(doses(), (Values{120, 50, 120}));
    EXPECT_EQ(scale(), (Values{0, 50, 120}));
    EXPECT_EQ(presc.dosisCollection(1), (Values{0, 50, 120}));
    presc.setDosis(1, 77.5F);
    EXPECT_EQ(doses(), (Values{120, 77.5, 120}));
    EXPECT_EQ(scale(), (Values{0, 77.5, 120}));
    EXPECT_EQ(presc.polygons()[1].color, presc.escalaColor().getColor(77.5));
    EXPECT_THROW(presc.setDosis(3, 1), std::out_of_range);
}

TEST_F(PrescTest, TellsTheColumnsAndTheAreaOfAZone) {
    ASSERT_TRUE(load(rowOfZones({"0.5"}, {0, 0})));
    EXPECT_EQ(presc.Gph_getInfo({texts, locale, style}, 0),
              "DOSIS: 0.5\r\nNOMBRE: zona 0\r\nArea calculada: 124 Has\r\n");
    presc.setColumnaDosis(1);
    presc.setDosis(0, 72.1F);
    EXPECT_EQ(presc.Gph_getInfo({texts, locale, style}, 0),
              "DOSIS: 0.5\r\nDosis cambiada: 72,1\r\nNOMBRE: zona 0\r\n"
              "Area calculada: 124 Has\r\n");
}

TEST_F(PrescTest, DrawsOnTopWhatACellGets) {
    // Each on its neighbours, and so many that the search does not go by records.
    ZoneMap map{{"DOSIS"}, {}};
    for (int i = 0; i < 120; ++i) {
        map.zones.push_back({{squareAt({0.01 * (i * 37 % 120), 0}, 0.015)}, {std::to_string(i)}});
    }
    ASSERT_TRUE(load(map));
    presc.setColumnaDosis(1);
    ASSERT_FALSE(std::is_sorted(presc.searchOrder().begin(), presc.searchOrder().end()));
    RecordingCanvas canvas({12000, 1000});
    const ViewTransform view(12, 12, {0, 0}, {12000, 1000});
    MapContext context{canvas, view, style};
    presc.Gph_plot(context);
    const std::vector<std::string> drawn = canvas.callsOf("polypolygon");
    ASSERT_EQ(drawn.size(), presc.searchOrder().size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const auto zone = static_cast<std::size_t>(presc.searchOrder()[i]);
        EXPECT_TRUE(drawn[i].starts_with("polypolygon fill=0x" +
                                         hexText(presc.polygons()[zone].color.value, 6)));
    }
}

TEST_F(PrescTest, ABlankOfTheColumnIsGroundOutsideEveryZone) {
    ASSERT_TRUE(load({{"DOSIS"},
                      {{{squareAt({0, 0}, 1)}, {"10"}},
                       {{squareAt({0, 0}, 2)}, {""}},
                       {{squareAt({3, 0}, 1)}, {"1.200,5"}}}}));
    presc.setColumnaDosis(1, {DecimalSign::Point, true});
    EXPECT_EQ(presc.searchOrder(), std::vector<std::int32_t>{0}) << "no number with a point";
    presc.setColumnaDosis(1, {DecimalSign::Comma, true});
    EXPECT_EQ(presc.searchOrder(), (std::vector<std::int32_t>{0, 2}));
    EXPECT_EQ(scale(), (Values{0, 10, 1200.5}));
    EXPECT_EQ(presc.polygonIndexAt({0.5, 0.5}), 0);
    EXPECT_EQ(presc.getPolygonAtPoint(0.5, 0.5), presc.polygons().data());
    EXPECT_EQ(presc.polygonIndexAt({1.5, 1.5}), -1);
    EXPECT_EQ(presc.Gph_mouseOver({}, style, {1.5, 1.5}, 0), 1) << "its values can be read";
    EXPECT_FALSE(presc.escalaColor().setClassValue(0, 7));
    EXPECT_EQ(doses(), (Values{10, 0, 1200.5F})) << "the dose 0 of nobody";
    RecordingCanvas canvas({1000, 1000});
    const ViewTransform view(500, 500, {0, 0}, {1000, 1000});
    MapContext context{canvas, view, style};
    presc.Gph_plot(context);
    ASSERT_FALSE(canvas.calls().empty());
    EXPECT_TRUE(canvas.calls()[0].starts_with("polypolygon fill=0xFFFFFF")) << canvas.calls()[0];
}

TEST_F(PrescTest, PointsAndLinesAreShownAndHoldNoGround) {
    ShapeBytes points(1);
    points.addPoint({0.01, 0.01});
    ShapeBytes lines(3);
    lines.addPolygon({{{0, 0}, {0.02, 0.02}}});
    for (const auto& [shapes, figures, call] :
         {std::tuple(points, FigureKind::Points, "rectangle filled 0x112233: (955,8955)"),
          std::tuple(lines, FigureKind::Lines, "line 0x112233 width=2 solid: (0,10000)")}) {
        SCOPED_TRACE(call);
        DbaseBytes table({{"VALOR"}});
        table.addRow({"8,5 kg"});
        folder.write("m.dbf", table.bytes());
        GphPresc map(Color{0x112233});
        ASSERT_TRUE(map.loadFromFile(folder.write("m.shp", shapes.bytes()), desk));
        EXPECT_TRUE(dialogs.messages.empty());
        EXPECT_EQ(map.figures(), figures);
        const ViewTransform view(1.1132F, 1.1132F, {0, 0}, {10000, 10000});
        EXPECT_EQ(map.Gph_mouseOver(view, style, {0.0105, 0.01}, 0), 0);
        EXPECT_EQ(map.Gph_mouseOver(view, style, {0.0125, 0.01}, 0), -1);
        EXPECT_EQ(map.Gph_getInfo({texts, locale, style}, 0), "VALOR: 8,5 kg\r\n");
        RecordingCanvas canvas({10000, 10000});
        MapContext context{canvas, view, style};
        map.Gph_plot(context);
        ASSERT_EQ(canvas.calls().size(), 1U);
        EXPECT_TRUE(canvas.calls()[0].starts_with(call)) << canvas.calls()[0];
    }
}

TEST_F(PrescTest, SaysWhatIsWrongWithAFile) {
    const std::string bad = folder.write("malo.shp", "no es un mapa");
    EXPECT_FALSE(presc.loadFromFile(bad, desk));
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_NE(dialogs.messages[0].find(bad), std::string::npos);
    EXPECT_EQ(presc.Gph_count(), 0);

    const std::string empty = write({{"DOSIS"}, {{{}, {"1"}}}});
    folder.write("lote.dbf", "no es una tabla");
    EXPECT_TRUE(presc.loadFromFile(empty, desk));
    ASSERT_EQ(dialogs.messages.size(), 3U);
    EXPECT_NE(dialogs.messages[1].find("lote.dbf"), std::string::npos) << dialogs.messages[1];
    EXPECT_EQ(dialogs.messages[2],
              "Exclamation|Campora|El archivo no contiene polígonos: " + empty);
}

}  // namespace
}  // namespace campora
