// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/export_layers.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/exported_layers.h"

namespace campora {
namespace {

TEST(CellInteger, RoundsHalvesToEvenWithinTheType) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    const std::tuple<const char*, CellValue, std::optional<std::int64_t>> rows[] = {
        {"empty", {}, std::nullopt},
        {"every digit of a whole number", kMost - 1, kMost - 1},
        {"tie down", 4.5, 4},
        {"number that a text begins with", std::string("12.5 l/ha"), 12},
        {"largest double that fits", 9223372036854774784.0, 9223372036854774784},
        {"one too large", 9223372036854775808.0, std::nullopt},
        {"no number", std::nan(""), std::nullopt},
    };
    for (const auto& [name, cell, number] : rows) {
        EXPECT_EQ(cellInteger(cell), number) << name;
    }
}

TEST(ExportColumns, ATypeHoldsTheCellsOfEveryLayerInAnyOrder) {
    using enum ColumnType;
    const std::tuple<const char*, ColumnType, ColumnType, ColumnType> rows[] = {
        {"the same", Date, Date, Date},
        {"numbers", Integer, Real, Real},
        {"number and text", Real, Text, Text},
        {"number and date", Integer, Date, Text},
    };
    for (const auto& [name, first, second, united] : rows) {
        SCOPED_TRACE(name);
        AttributeLayer one({squareAt(0, 0)}, {{"A", first, {CellValue()}}});
        // Of two columns of one name in a layer only the first one is read.
        AttributeLayer other({squareAt(0, 0)}, {{"A", second, {CellValue()}},
                                                {"A", ColumnType::Text, {CellValue()}}});
        const std::vector<Gph*> orders[] = {{&one, &other}, {&other, &one}};
        for (const std::vector<Gph*>& order : orders) {
            const auto layers = pointLayers(order);
            const ExportColumns all = ExportColumns::ofAll(layers);
            ASSERT_EQ(all.columns().size(), 1U);
            EXPECT_EQ(all.columns()[0].type, united);
            EXPECT_EQ(ExportColumns::ofFirst(layers).columns()[0].type,
                      order[0] == &one ? first : second);
        }
    }
}

}  // namespace
}  // namespace campora
