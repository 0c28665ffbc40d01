// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/txt_export.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "support/exported_layers.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

struct TextTest : testing::Test {
    /// The bytes of the table; the test fails when it cannot be written.
    std::string table(const std::vector<const Gph*>& layers) {
        NoProgress silent;
        ExportProgress progress(silent);
        EXPECT_EQ(txtExport(layers, path, form, locale, progress), std::nullopt);
        return contentOf(path);
    }

    TempFolder folder;
    std::string path = folder.file("tabla.txt");
    TextTableForm form;
    FixedLocale locale;
};

TEST_F(TextTest, CoordinatesHaveABlankForASignAndFifteenDigits) {
    const std::tuple<const char*, double, const char*> rows[] = {
        {"negative zero", -0.0, " 0"},
        {"fifteen digits", -58.381612345678912, "-58.3816123456789"},
        {"the sixteenth rounds", 0.1 + 0.2, " 0.3"},
        {"small, without exponent", 0.0000125, " 0.0000125"},
        {"large, without exponent", 1e17, " 100000000000000000"},
        {"no number", std::numeric_limits<double>::quiet_NaN(), " 0"},
    };
    for (const auto& [name, value, text] : rows) {
        SCOPED_TRACE(name);
        const PointLayer layer({{value, 1}});
        EXPECT_EQ(table({&layer}), "Longitud\tLatitud\r\n" + std::string(text) + "\t 1\r\n");
    }
}

TEST_F(TextTest, CellsAreAsTheLocaleWritesThemWithTheChosenSymbol) {
    // The cell with user's symbol and chosen symbol "..", ".,", ",." and ",,".
    const std::tuple<CellValue, std::array<const char*, 4>> rows[] = {
        {std::int64_t{4294967295}, {"4294967295", "4294967295", "4294967295", "4294967295"}},
        {std::string("a,b.c"), {"a,b.c", "a,b,c", "a.b.c", "a,b.c"}},
        {std::string("\u00f1 \u4e2d\tb\r\n"),
         {"\xF1 ? b  ", "\xF1 ? b  ", "\xF1 ? b  ", "\xF1 ? b  "}},
        {Date{2018, 3, 5}, {"05.03.18", "05,03,18", "05.03.18", "05.03.18"}},
    };
    for (const auto& [cell, texts] : rows) {
        const AttributeLayer cells({{{-58.5, 34.25}}}, {{"A", ColumnType::Text, {cell}}});
        for (std::size_t i = 0; i < texts.size(); ++i) {
            locale = FixedLocale(i < 2 ? '.' : ',', "dd.mm.yy");
            form.decimalSymbol = i % 2 == 0 ? '.' : ',';
            EXPECT_EQ(table({&cells}),
                      "Longitud\tLatitud\tA\r\n" +
                          std::string(i == 1 ? "-58,5\t 34,25\t" : "-58.5\t 34.25\t") + texts[i] +
                          "\r\n");
        }
    }
}

TEST_F(TextTest, ColumnsStandThereWhenEveryLayerWithPointsHasData) {
    const AttributeLayer first({{{1, 2}}, {{3, 4}}},
                               {{" A.1 ", ColumnType::Integer, {std::int64_t{1}, std::int64_t{2}}},
                                {"Larga", ColumnType::Real, {1.5F, 2.5F}}});
    const AttributeLayer second({{{5, 6}}}, {{"B", ColumnType::Text, {std::string("x")}}});
    const PointLayer bare({{7, 8}});
    const PointLayer empty({});
    const RingLayer rings({{{0, 0}, {1, 0}, {1, 1}}});
    form.decimalSymbol = ',';
    EXPECT_EQ(table({&empty, &rings, &first, &second}),
              "Longitud\tLatitud\tA.1\tLarga\tB\r\n"
              " 1\t 2\t1\t1,5\t\r\n 3\t 4\t2\t2,5\t\r\n 5\t 6\t\t\tx\r\n");
    EXPECT_EQ(table({&first, &bare}), "Longitud\tLatitud\r\n 1\t 2\r\n 3\t 4\r\n 7\t 8\r\n");
    form.longestName = 3;
    form.separator = ";";
    EXPECT_EQ(table({&second}), "Longitud;Latitud;B\r\n 5; 6;x\r\n");
    EXPECT_EQ(table({&first}), "Longitud;Latitud;A.1;Lar\r\n 1; 2;1;1,5\r\n 3; 4;2;2,5\r\n");
}

TEST_F(TextTest, AReportsPointsComeWithTheirSwathInCentimetres) {
    GphTrack track;
    track.addPoint(-60.5, -33, reportRecord(90, 12.5F));
    EXPECT_EQ(table({&track}),
              "Longitud\tLatitud\tD_Real1\tD_Espec1\tVelocidad\tAlarmas\tAnchoLabor\tHora\r\n"
              "-60.5\t-33\t90\t100\t0\t0\t1250\t00:00:00\r\n");
}

}  // namespace
}  // namespace campora
