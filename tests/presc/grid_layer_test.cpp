// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/grid_layer.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presc/gph_pre.h"
#include "presc/gph_vrt.h"
#include "presc/load_grid.h"
#include "support/recording_canvas.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Doses = std::vector<std::int16_t>;

constexpr Color kBack{0x123456};
constexpr double kHeight = 20 / 111320.0;

PreGrid preFile(std::int16_t columns, std::int16_t rows, int channels, Doses doses) {
    return {{encodePreCoordinate(-34.5), encodePreCoordinate(-58.25), columns, rows, 20, 1855, 1529,
             channels},
            std::move(doses)};
}

GphPRE pre(std::int16_t columns, std::int16_t rows, Doses doses, int channels = 1) {
    return {"/campo/Lote 7.pre", preFile(columns, rows, channels, std::move(doses)), kBack, ','};
}

GphVRT vrt(Doses doses, int channels = 1) {
    return {"/campo/Lote 7.vrt",
            {{-58.25F, -34.5F, 20, 2, 2, channels, "Norte", "Maíz"}, std::move(doses)},
            kBack,
            '.'};
}

std::vector<std::string> summaryOf(GridLayer& layer) {
    std::vector<std::string> lines;
    for (const auto& [property, value, unit] : layer.File_resumen().entries()) {
        lines.push_back(property + "|" + value + "|" + unit);
    }
    return lines;
}

std::vector<LonLat> cornersOf(const GridLayer& layer, std::int32_t cell) {
    std::vector<LonLat> corners;
    for (std::int32_t i = 0; i < 4; ++i) {
        corners.push_back(layer.ExportablePolygon_polygonNpoint(cell, i));
    }
    return corners;
}

TEST(GridLayer, APreTellsSurfaceAndProductOfItsChannels) {
    Doses doses(54 * 29 * 2, 0);
    for (std::size_t cell = 0; cell < 300; ++cell) {
        doses[cell * 2] = 75;
    }
    doses[1] = -3;
    GphPRE layer = pre(54, 29, doses, 2);
    EXPECT_THAT(summaryOf(layer),
                ElementsAre("Ancho Labor|20|mts", "Cant. de Canales|2|", "Superficie (C 1)|12|Has",
                            "Superficie (C 2)|0,04|Has", "Producto total (C 1)|900|",
                            "Producto total (C 2)|-0,12|"));
}

TEST(GridLayer, CellsLieFromTheirCornerOn) {
    const GphPRE layer = pre(3, 2, {1, 2, 3, 4, 5, 6});
    const double step = 20.0 / 91742;  // whole metres a degree at the north edge
    const LonLat at = layer.ExportablePoint_pointN(5);
    EXPECT_DOUBLE_EQ(at.x, -58.25 + 2 * step);
    EXPECT_DOUBLE_EQ(at.y, -34.5 - kHeight);
    const auto corners = cornersOf(layer, 0);
    const double width = 20 / (std::cos(-34.5 * 3.14159265358979 / 180) * 111320);
    EXPECT_DOUBLE_EQ(corners[1].x - corners[0].x, corners[2].x - corners[3].x);
    EXPECT_NEAR(corners[1].x - corners[0].x, width, 1e-13);
    EXPECT_DOUBLE_EQ(corners[2].y, -34.5 - kHeight);
    EXPECT_EQ(corners[0], (LonLat{-58.25, -34.5}));

    const auto north = cornersOf(vrt({1, 2, 3, 4}), 2);
    EXPECT_DOUBLE_EQ(north[0].y, -34.5 + kHeight);
    EXPECT_DOUBLE_EQ(north[3].y, -34.5 + kHeight + kHeight);
}

TEST(GridLayer, ThePointerFindsTheFirstCellThatHoldsIt) {
    const GphPRE south = pre(2, 2, {1, 2, 3, 4});
    const GphVRT north = vrt({1, 2, 3, 4});
    const double step = 20.0 / 91742;
    // In cells, from the stored corner of cell 0 to the east and in the direction of the rows.
    const std::tuple<const char*, double, double, int> rows[] = {
        {"inside the first", 0.5, 0.5, 0}, {"shared corner", 0.9999, 1, 0},
        {"second column", 1.5, 0.5, 1},    {"last", 1.99, 1.99, 3},
        {"west", -0.001, 0.5, -1},         {"after the rows", 0.5, 2.001, -1},
        {"nowhere", NAN, 0.5, -1},
    };
    for (const auto& [name, east, along, cell] : rows) {
        SCOPED_TRACE(name);
        const double x = -58.25 + east * step;
        EXPECT_EQ(south.Gph_mouseOver({}, {}, {x, -34.5 - along * kHeight}, 0), cell);
        EXPECT_EQ(north.Gph_mouseOver({}, {}, {x, -34.5 + along * kHeight}, 0), cell);
    }
}

TEST(GridLayer, TheChosenChannelIsTheOneShown) {
    GphVRT layer = vrt({1250, 0, 1, 300, 2, 0, 3, 0}, 2);
    const Texts texts;
    const FixedLocale locale(',');
    EXPECT_EQ(layer.Gph_getInfo({texts, locale, {}}, 0), "Dosis especificada: 12,5");
    layer.setCurrentChannel(1);
    EXPECT_EQ(layer.Gph_getInfo({texts, locale, {}}, 1), "Dosis especificada: 3");
    EXPECT_EQ(layer.File_escalaColores(), &layer.channelScale(1));
    EXPECT_EQ(layer.File_escalaColores()->getClass(0).color, kBack) << "cells without a dose";
}

TEST(GridLayer, CellsSideBySideOfOneDoseAreOneRectangle) {
    const GphPRE layer = pre(4, 2, {7, 7, 0, 9, 9, 9, 9, 9});
    MapStyle style;
    style.colors.back = {0xABCDEF};
    RecordingCanvas canvas({2000, 1000});
    // 1 metre is 10 units, the lower edge 100 m below the grid's upper one.
    const ViewTransform view(0.1F, 0.1F, {-58.25, -34.5 - 100 / 111320.0}, {2000, 1000});
    MapContext context{canvas, view, style};
    layer.Gph_plot(context);
    EXPECT_THAT(canvas.callsOf("rectangle filled"),
                ElementsAre("rectangle filled 0x00FF00: (0,0) (402,200)",
                            "rectangle filled 0xABCDEF: (400,0) (602,200)",
                            "rectangle filled 0x0000FF: (600,0) (802,200)",
                            "rectangle filled 0x0000FF: (0,200) (802,400)"));
    const std::vector<std::string> outlines = canvas.callsOf("rectangle outlined");
    ASSERT_EQ(outlines.size(), 7U) << "of the cells with a dose, on top";
    EXPECT_EQ(outlines[1], "rectangle outlined 0x000000 width=1 solid: (200,0) (400,200)");

    canvas.forget();
    const ViewTransform far(2, 2, {-58.25, -34.5 - 100 / 111320.0}, {2000, 1000});
    MapContext small{canvas, far, style};
    layer.Gph_plot(small);
    EXPECT_EQ(canvas.callsOf("point").size(), 8U) << "cells of less than a pixel";
    EXPECT_EQ(canvas.calls().at(2), "point 0xABCDEF width=1: (20,950)");
}

TEST(LoadGrid, TheFirstBytesDecideAndWhatIsWrongIsSaid) {
    const TempFolder folder;
    const std::string preBytes = encodePre(preFile(1, 1, 1, {5}).header, Doses{5});
    const std::string vrtBytes = encodeVrt({-58.25F, -34.5F, 20, 1, 1, 1, "", ""}, Doses{5});
    folder.write("a.pre", preBytes);
    folder.write("b.dat", vrtBytes);
    folder.write("c.vrt", preBytes);
    folder.write("e.pre", "nothing of the kind");
    folder.write("g.pre", preBytes.substr(0, 97));
    // The kind of the layer, or else what is said.
    const std::tuple<const char*, std::string_view, const char*> rows[] = {
        {"a.pre", "GphPRE", ""},
        {"b.dat", "GphVRT", ""},
        {"c.vrt", "GphPRE", ""},
        {"e.pre", "", "El archivo no es compatible: "},
        {"g.pre", "", "g.pre: está cortado en el byte 97"},
    };
    for (const auto& [name, kind, says] : rows) {
        SCOPED_TRACE(name);
        ScriptedDialogs dialogs;
        const auto layer =
            loadGrid(folder.file(name), {dialogs, Texts(), FixedLocale()}, MapColors().back);
        EXPECT_EQ(layer ? layer->Gph_kind() : "", kind);
        EXPECT_EQ(dialogs.messages.size(), layer ? 0U : 1U);
        EXPECT_THAT(dialogs.messages, testing::Each(HasSubstr(says)));
    }
}

}  // namespace
}  // namespace campora
