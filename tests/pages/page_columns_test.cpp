// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_columns.h"

#include <map>
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
    const std::tuple<std::vector<PageBlock>, int, int, std::vector<std::string>, bool> rows[] = {
        {{block("a", 2), block("b", 1)}, 1, 9, {"a a1 a2 - b b1 "}, false},
        // one that joins, where there is room
        {{block("a", 2), block("b", 1, true), block("c", 2)},
         3,
         9,
         {"a a1 a2 ", "b b1 ", "c c1 c2 "},
         false},
        // one long one runs on
        {{block("a", 13), block("b", 1)},
         2,
         20,
         {"a a1 a2 a3 a4 a5 a6 a7 a8 ", "a9 a10 a11 a12 a13 - b b1 "},
         false},
        {{block("a", 9), block("b", 1)}, 1, 7, {"a a1 a2 +7 - b b1 "}, true},
        {{block("a", 9), block("b", 1)}, 1, 3, {"a a1 +8 "}, true},
        {{block("a", 9)}, 1, 1, {}, true},
    };
    for (const auto& [blocks, columns, mostLines, expected, cut] : rows) {
        const PlacedBlocks placed = placeBlocks(
            blocks, columns, mostLines, [](int left) { return "+" + std::to_string(left); });
        EXPECT_EQ(shown(placed), expected);
        EXPECT_EQ(placed.cut, cut);
    }
}

}  // namespace
}  // namespace campora
