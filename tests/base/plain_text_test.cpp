// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/plain_text.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(PlainText, WhatSteersTheScreenIsShownAsAMark) {
    const std::pair<std::string, std::string> rows[] = {
        {"Ñandú ✓ 🌱.rpt", "Ñandú ✓ 🌱.rpt"},
        {"a\x1B[2Jb\x07", "a\uFFFD[2Jb\uFFFD"},
        {"\u0080\u009F\x7F|\u00A0", "\uFFFD\uFFFD\uFFFD|\u00A0"},
        {"\u200E\u200F\u202A\u202E\u2066\u2069\u061C",
         "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\u200D\u202F\u206A", "\u200D\u202F\u206A"},
        {"a\xF1o \xE2\x80", "a\uFFFDo \uFFFD\uFFFD"},
        {std::string("\0x", 2), "\uFFFDx"},
    };
    for (const auto& [text, shown] : rows) {
        EXPECT_EQ(plainText(text), shown);
        EXPECT_EQ(plainLine(text), shown);
    }
    EXPECT_EQ(plainText("a\r\nb\n\tc"), "a\r\nb\n\tc");
    EXPECT_EQ(plainLine("a\r\nb\n\tc"), "a\uFFFD\uFFFDb\uFFFD\uFFFDc");
}

}  // namespace
}  // namespace campora
