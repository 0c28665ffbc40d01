// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_columns.h"

#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace campora {
namespace {

PageBlock block(const std::string& name, int rows, bool joins = false) {
    PageBlock made{{{PageRow::Kind::Heading, name}}, joins};
    for (int i = 1; i <= rows; ++i) {
        made.rows.push_back({PageRow::Kind::Line, name + std::to_string(i)});
    }
    return made;
}

/// The columns as lines of text, blank lines as "-".
std::vector<std::string> shown(const PlacedBlocks& placed) {
    std::map<int, std::map<int, std::string>> columns;
    for (const auto& [row, column, line] : placed.rows) {
        columns[column][line] = row.text;
    }
    std::vector<std::string> texts;
    for (const auto& [column, lines] : columns) {
        std::string text;
        for (int line = 0; line <= lines.rbegin()->first; ++line) {
            const auto found = lines.find(line);
            text += (found == lines.end() ? "-" : found->second) + " ";
        }
        texts.push_back(text);
    }
    return texts;
}

TEST(PageColumns, SetsBlocksAsLowAsTheyGo) {
    struct Row {
        const char* name;
        std::vector<PageBlock> blocks;
        int columns;
        int mostLines;
        std::vector<std::string> expected;
        bool cut = false;
    };
    const Row rows[] = {
        {"one below the other", {block("a", 2), block("b", 1)}, 1, 9, {"a a1 a2 - b b1 "}},
        {"one that joins where there is room",
         {block("a", 2), block("b", 1, true), block("c", 2)},
         3,
         9,
         {"a a1 a2 ", "b b1 ", "c c1 c2 "}},
        {"one long one runs on",
         {block("a", 13), block("b", 1)},
         2,
         20,
         {"a a1 a2 a3 a4 a5 a6 a7 a8 ", "a9 a10 a11 a12 a13 - b b1 "}},
        {"more than fits", {block("a", 9), block("b", 1)}, 1, 7, {"a a1 a2 +7 - b b1 "}, true},
        {"too low for two", {block("a", 9), block("b", 1)}, 1, 3, {"a a1 +8 "}, true},
        {"no room", {block("a", 9)}, 1, 1, {}, true},
    };
    for (const Row& row : rows) {
        const PlacedBlocks placed =
            placeBlocks(row.blocks, row.columns, row.mostLines,
                        [](int left) { return "+" + std::to_string(left); });
        EXPECT_EQ(shown(placed), row.expected) << row.name;
        EXPECT_EQ(placed.cut, row.cut) << row.name;
    }
}

TEST(PageColumns, NoHeadingStandsAloneAndNoPlaceIsTakenTwice) {
    for (int columns = 1; columns <= 4; ++columns) {
        for (int most = 2; most <= 30; ++most) {
            const PlacedBlocks placed =
                placeBlocks({block("a", 11), block("b", 3, true), block("c", 9), block("d", 6)},
                            columns, most, [](int /*left*/) { return "+"; });
            std::set<std::pair<int, int>> taken;
            for (const PlacedRow& row : placed.rows) {
                EXPECT_TRUE(taken.emplace(row.column, row.line).second);
                EXPECT_LT(row.column, columns);
                EXPECT_LT(row.line, most);
            }
            for (const PlacedRow& row : placed.rows) {
                if (row.row.kind == PageRow::Kind::Heading) {
                    EXPECT_TRUE(taken.contains({row.column, row.line + 1}))
                        << columns << ' ' << most;
                }
            }
        }
    }
}

}  // namespace
}  // namespace campora
