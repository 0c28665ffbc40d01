// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/text.h"

#include <utility>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(Text, TrimTakesBlanksOfBothEndsOnly) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"", ""}, {" \t\r\n", ""}, {"\t a b \r\n", "a b"}, {"  á ", "á"}, {"\va\v", "\va\v"}};
    for (const auto& [text, trimmed] : rows) {
        EXPECT_EQ(trim(text), trimmed);
    }
}

TEST(Text, LowerCaseKnowsLatinLetters) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"@[`{", "@[`{"},
        {"ÀÖ×ØÞß", "àö×øþß"},
        {"ŸİıĸŉſƀΑЖ€", "ÿiıĸŉſƀΑЖ€"},
        {"\U0001F33E\u8fb2", "\U0001F33E\u8fb2"},
        {"\xC3", "\xC3"},
        {"\xD1.A\xE9\xC3.B", "\xD1.a\xE9\xC3.b"}};
    for (const auto& [text, lower] : rows) {
        EXPECT_EQ(lowerCase(text), lower);
        EXPECT_EQ(lowerCase(lower), lower) << "lower case stays";
    }
}

}  // namespace
}  // namespace campora
