// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/encoding.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace campora {
namespace {

/// The fast way over ASCII must neither skip nor stop at any place within its stride.
void expectUtf8(std::string_view bytes, bool valid) {
    for (std::size_t before = 0; before < 17; ++before) {
        const std::string padded = std::string(before, 'x') + std::string(bytes);
        EXPECT_EQ(isUtf8(padded + std::string(16, 'y')), valid)
            << testing::PrintToString(bytes) << before;
        EXPECT_EQ(isUtf8(padded), valid) << testing::PrintToString(bytes) << before;
    }
}

TEST(Utf8, OnlyWellFormedBytesAreValid) {
    // The first and the last of two, three and four bytes, and those around the surrogates.
    for (const char* bytes : {"", "\xC2\x80\xDF\xBF", "\xE0\xA0\x80\xEF\xBF\xBF",
                              "\xED\x9F\xBF\xEE\x80\x80", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"}) {
        expectUtf8(bytes, true);
    }
    expectUtf8(std::string_view("a\0b", 3), true);
    // A lone continuation, overlong ones, surrogates, beyond the last plane and of five bytes, cut
    // ones, and accents of Windows-1252.
    for (const char* bytes :
         {"\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF", "a\xC3", "\xE2\x82", "\xF0\x90\x80",
          "a\xF1o"}) {
        expectUtf8(bytes, false);
    }
}

TEST(Windows1252, SpecialCharactersOfTheCodePage) {
    std::string bytes;
    for (int byte = 0x80; byte <= 0x9F; ++byte) {
        bytes.push_back(static_cast<char>(byte));
    }
    EXPECT_EQ(fromWindows1252(bytes + "A\xF1o \xA0\xFF"),
              "€�‚ƒ„…†‡ˆ‰Š‹Œ�Ž��‘’“”•–—˜™š›œ�žŸAño \u00a0ÿ");
}

TEST(Windows1252, EveryByteThatMeansSomethingComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        const std::string text = fromWindows1252(one);
        EXPECT_TRUE(isUtf8(text)) << byte;
        EXPECT_EQ(toWindows1252(text), text == "\uFFFD" ? "?" : one) << byte;
    }
}

TEST(Windows1252, WhatItLacksBecomesQuestionMarks) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"a\u0100b\u8fb2c\U0001F33E", "a?b?c?"},
        {"\u0081\u009f", "??"},
        {"a\xF1o", "a?o"},
        {"\xE2\x82", "??"}};
    for (const auto& [text, bytes] : rows) {
        EXPECT_EQ(toWindows1252(text), bytes);
    }
}

TEST(DecodeText, APartFollowsItsFile) {
    EXPECT_EQ(decodeText("\xC3\xB1", false), "Ã±") << "the file is Windows-1252";
    EXPECT_EQ(decodeText("\xC3\xB1", true), "ñ");
    EXPECT_TRUE(isUtf8(decodeText("A\xC3", true))) << "cut inside a character";
}

}  // namespace
}  // namespace campora
