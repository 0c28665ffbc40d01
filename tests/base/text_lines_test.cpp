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
        {"mixed", "a\r\nb\nc", {"a", "b", "c"}},
        {"empty lines count", "\n\r\n\na", {"", "", "", "a"}},
        {"one CR before LF goes", "a\r\r\nb", {"a\r", "b"}},
        {"CR at the very end stays", "a\nb\r", {"a", "b\r"}},
    };
    for (const auto& [name, text, lines] : rows) {
        EXPECT_EQ(readAllLines(text), lines) << name;
    }
}

}  // namespace
}  // namespace campora
