// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/export_layers.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/attribute_layer.h"

namespace campora {
namespace {

TEST(CellInteger, RoundsHalvesToEvenWithinTheType) {
    struct Row {
        const char* name;
        CellValue cell;
        std::optional<std::int64_t> number;
    };
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    const Row rows[] = {
        {"empty", {}, std::nullopt},
        {"date", Date{2018, 3, 5}, std::nullopt},
        {"every digit of a whole number", kMost - 1, kMost - 1},
        {"tie down", 4.5, 4},
        {"tie up", 5.5F, 6},
        {"negative tie", -0.5, 0},
        {"number that a text begins with", std::string("12.5 l/ha"), 12},
        {"text", std::string("l/ha"), std::nullopt},
        {"largest double that fits", 9223372036854774784.0, 9223372036854774784},
        {"one too large", 9223372036854775808.0, std::nullopt},
        {"one too small", -1e19, std::nullopt},
        {"no number", std::nan(""), std::nullopt},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(cellInteger(row.cell), row.number) << row.name;
    }
}

TEST(FigureLayers, PolygonsBeforePointsAndNeverBoth) {
    NamedLayer picture("");
    AttributeLayer both({squareAt(0, 0), squareAt(1, 1)}, {});
    RingLayer noRings({});
    PointLayer points({{5, 5}});
    const std::vector<Gph*> all = {&picture, &points, &noRings, &both};
    const auto polygons = figureLayers(all);
    ASSERT_EQ(polygons.size(), 2U);
    EXPECT_EQ(polygons[1].gph, &both);
    EXPECT_EQ(polygons[1].points, nullptr);
    EXPECT_EQ(figureCount(polygons), 2);
    const std::vector<Gph*> withoutFigures = {&picture, &points, &noRings};
    const auto others = figureLayers(withoutFigures);
    ASSERT_EQ(others.size(), 1U);
    EXPECT_EQ(others[0].polygons, nullptr);
    EXPECT_EQ(figureCount(others), 1);
}

TEST(BoxOfLayers, LeavesOutLayersWithoutABox) {
    PointLayer boxless({{50, 50}});
    AttributeLayer one({squareAt(2, 3)}, {});
    AttributeLayer other({squareAt(-7, 8)}, {});
    const BoundingBox box = boxOf(pointLayers(std::vector<Gph*>{&boxless, &one, &other}));
    EXPECT_TRUE(box.isSet);
    EXPECT_EQ(box.minX, -8);
    EXPECT_EQ(box.minY, 2);
    EXPECT_EQ(box.maxX, 4);
    EXPECT_EQ(box.maxY, 10);
    EXPECT_FALSE(boxOf(pointLayers(std::vector<Gph*>{&boxless})).isSet);
}

TEST(ExportColumns, ATypeHoldsTheCellsOfEveryLayerInAnyOrder) {
    using enum ColumnType;
    struct Row {
        const char* name;
        ColumnType one;
        ColumnType other;
        ColumnType both;
    };
    const Row rows[] = {
        {"the same", Date, Date, Date},
        {"numbers", Integer, Real, Real},
        {"number and text", Real, Text, Text},
        {"number and date", Integer, Date, Text},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AttributeLayer one({squareAt(0, 0)}, {{"A", row.one, {CellValue()}}});
        // Of two columns of one name in a layer only the first one is read.
        AttributeLayer other({squareAt(0, 0)}, {{"A", row.other, {CellValue()}},
                                                {"A", ColumnType::Text, {CellValue()}}});
        const std::vector<Gph*> orders[] = {{&one, &other}, {&other, &one}};
        for (const std::vector<Gph*>& order : orders) {
            const auto layers = pointLayers(order);
            const ExportColumns all = ExportColumns::ofAll(layers);
            ASSERT_EQ(all.columns().size(), 1U);
            EXPECT_EQ(all.columns()[0].type, row.both);
            EXPECT_EQ(ExportColumns::ofFirst(layers).columns()[0].type,
                      order[0] == &one ? row.one : row.other);
        }
    }
}

TEST(ExportColumns, FindCellsByTheNameOfTheirColumn) {
    const auto number = [](std::int64_t value) { return CellValue(value); };
    AttributeLayer one({squareAt(0, 0)}, {{"A", ColumnType::Integer, {number(1)}},
                                          {"B", ColumnType::Text, {std::string("b")}}});
    AttributeLayer two({squareAt(0, 0)}, {{"C", ColumnType::Integer, {number(3)}},
                                          {"A", ColumnType::Integer, {number(4)}}});
    AttributeLayer empty({}, {});
    PointLayer points({{50, 50}});
    const auto layers = pointLayers(std::vector<Gph*>{&empty, &one, &two});
    const ExportColumns first = ExportColumns::ofFirst(layers);
    ASSERT_EQ(first.columns().size(), 2U);
    EXPECT_EQ(first.cell(1, 0, 1), CellValue(std::string("b")));
    EXPECT_EQ(first.cell(2, 0, 0), number(4));
    EXPECT_EQ(first.cell(2, 0, 1), CellValue());
    const ExportColumns all = ExportColumns::ofAll(layers);
    ASSERT_EQ(all.columns().size(), 3U);
    EXPECT_EQ(all.columns()[2].name, "C");
    EXPECT_EQ(all.cell(2, 0, 2), number(3));
    EXPECT_FALSE(allHaveColumns(pointLayers(std::vector<Gph*>{&one, &two, &points})));
    RingLayer bare({squareAt(0, 0)});
    const auto beside = polygonLayers(std::vector<Gph*>{&bare, &one});
    EXPECT_TRUE(ExportColumns::ofFirst(beside).empty());
    EXPECT_EQ(ExportColumns::ofAll(beside).cell(0, 0, 1), CellValue());
    EXPECT_EQ(ExportColumns::ofAll(beside).cell(1, 0, 0), number(1));
    // New columns stand behind the one before them in their layer.
    AttributeLayer between({squareAt(0, 0)}, {{"A", ColumnType::Integer, {number(5)}},
                                              {"D", ColumnType::Integer, {number(6)}}});
    const ExportColumns both = ExportColumns::ofAll(pointLayers(std::vector<Gph*>{&one, &between}));
    EXPECT_EQ(both.columns()[1].name, "D");
}

}  // namespace
}  // namespace campora
