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

TEST(GphLote, HoldsWhatLiesInside) {
    const GphLote lot = square(0.01);
    EXPECT_EQ(lot.Gph_mouseOver({}, {}, {0.005, 0.005}, 0), 0);
    EXPECT_EQ(lot.Gph_mouseOver({}, {}, {0.015, 0.005}, 0), -1);
    EXPECT_EQ(GphLote().Gph_mouseOver({}, {}, {0, 0}, 0), -1);
}

}  // namespace
}  // namespace campora
