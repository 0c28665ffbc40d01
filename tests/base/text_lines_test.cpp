// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/text_lines.h"

#include <gtest/gtest.h>

namespace campora {
namespace {

using Lines = std::vector<std::string_view>;

TEST(TextLines, EndsOfLines) {
    const std::tuple<const char*, std::string_view, Lines> rows[] = {
        {"empty text", "", {}},
        {"CR LF", "a\r\nb\r\n", {"a", "b"}},
        {"mixed", "a\r\nb\nc", {"a", "b", "c"}},
        {"empty lines count", "\n\r\n\na", {"", "", "", "a"}},
        {"lone CR stays", "a\rb\nc", {"a\rb", "c"}},
        {"one CR before LF goes", "a\r\r\nb", {"a\r", "b"}},
        {"CR at the very end stays", "a\nb\r", {"a", "b\r"}},
        {"NUL is no end", std::string_view("a\0b\nc", 5), {std::string_view("a\0b", 3), "c"}},
    };
    for (const auto& [name, text, lines] : rows) {
        EXPECT_EQ(readAllLines(text), lines) << name;
    }
}

TEST(TextLines, NumbersCountFromOne) {
    TextLines lines("a\n\nc");
    std::string_view line;
    EXPECT_EQ(lines.lineNumber(), 0U);
    for (std::size_t number = 1; number <= 3; ++number) {
        ASSERT_TRUE(lines.next(line));
        EXPECT_EQ(lines.lineNumber(), number);
    }
    EXPECT_FALSE(lines.next(line));
    EXPECT_EQ(lines.lineNumber(), 3U);
    EXPECT_EQ(line, "c") << "the end leaves the last line alone";
}

}  // namespace
}  // namespace campora
