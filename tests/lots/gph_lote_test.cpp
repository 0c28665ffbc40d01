// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/gph_lote.h"

#include <gtest/gtest.h>

#include "support/recording_canvas.h"
#include "support/scripted_platform.h"

namespace campora {
namespace {

/// So many degrees square at the equator.
GphLote square(double side) {
    return {{{0, 0}, {side, 0}, {side, side}, {0, side}}, ""};
}

TEST(GphLote, TellsItsHectares) {
    const std::tuple<double, Language, char, const char*> rows[] = {
        {0.01, Language::Spanish, '.', "Lote Virtual. V 1.0\r\n123.9Has"},
        {0.0005, Language::Portuguese, ',', "Talhão virtual. V 1.0\r\n,3 ha"},
        {0.00001, Language::English, '.', "Virtual lot. V 1.0\r\n. ha"},
    };
    for (const auto& [side, language, symbol, text] : rows) {
        const FixedLocale locale(symbol);
        const Texts texts(language);
        EXPECT_EQ(square(side).Gph_getInfo({texts, locale, MapStyle()}, 0), text);
    }
}

TEST(GphLote, IsExportedAsAClosedRing) {
    const GphLote lot({{-58.5, -34.25}, {-58.4, -34.25}, {-58.4, -34.3}}, "");
    const MapStyle style;
    EXPECT_EQ(lot.ExportablePolygon_polygonNCount(style, 0), 4);
    EXPECT_EQ(lot.ExportablePolygon_polygonNCount(style, 1), 0);
    EXPECT_EQ(lot.ExportablePolygon_polygonNpoint(0, 2), (LonLat{-58.4, -34.3}));
    EXPECT_EQ(lot.ExportablePolygon_polygonNpoint(0, 3), (LonLat{-58.5, -34.25}));
    EXPECT_EQ((LonLat{lot.getPointX(2), lot.getPointY(2)}), (LonLat{-58.4, -34.3}));
    EXPECT_EQ(GphLote().ExportablePolygon_polygonNCount(style, 0), 0);
}

TEST(GphLote, IsHatchedAmongOthersAndItsOutlineLiesOnTop) {
    RecordingCanvas canvas{{1000, 500}};
    MapStyle style;
    style.colors.lot = Color::rgb(90, 180, 9);
    canvas.setPenColor(Color{0xABCDEF});
    const ViewTransform view(10, 10, {0, 0}, canvas.size());
    MapContext context{canvas, view, style};
    const auto drawn = [&](auto operation, const GphLote& lot) {
        canvas.forget();
        (lot.*operation)(context);
        EXPECT_EQ(canvas.penColor(), Color{0xABCDEF});
        return canvas.calls().empty() ? std::string() : canvas.calls()[0];
    };
    EXPECT_THAT(drawn(&GphLote::Gph_plot, square(0.01)),
                testing::StartsWith("polygon fill=0x09B45A style=hatched pen=0x09B45A width=1"));
    EXPECT_THAT(
        drawn(&GphLote::plotOnTop, square(0.01)),
        testing::StartsWith("polygon fill=0x09B45A style=transparent pen=0x056432 width=2"));
    context.lotsAlone = true;
    EXPECT_THAT(drawn(&GphLote::Gph_plot, square(0.01)),
                testing::StartsWith("polygon fill=0x09B45A style=solid pen=0x09B45A"));
    EXPECT_EQ(drawn(&GphLote::Gph_plot, GphLote({{50, 50}, {51, 50}, {50, 51}}, "")), "");
}

TEST(GphLote, HoldsWhatLiesInside) {
    const GphLote lot = square(0.01);
    EXPECT_EQ(lot.Gph_mouseOver({}, {}, {0.005, 0.005}, 0), 0);
    EXPECT_EQ(lot.Gph_mouseOver({}, {}, {0.015, 0.005}, 0), -1);
    EXPECT_EQ(GphLote().Gph_mouseOver({}, {}, {0, 0}, 0), -1);
}

}  // namespace
}  // namespace campora
