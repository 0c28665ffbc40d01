// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/texts.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "base/encoding.h"

namespace campora {
namespace {

/// The places %1 to %9 that a text has, each as often as it occurs.
std::multiset<char> placesOf(std::string_view text) {
    std::multiset<char> places;
    for (std::size_t at = text.find('%'); at != std::string_view::npos;
         at = text.find('%', at + 1)) {
        if (at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9') {
            places.insert(text[at + 1]);
        }
    }
    return places;
}

std::ptrdiff_t keysOf(std::string_view text) {
    return std::count(text.begin(), text.end(), '&');
}

TEST(TextTable, EveryTextStandsInThreeLanguagesWithTheSamePlacesAndKeys) {
    ASSERT_FALSE(textRows().empty());
    for (const TextRow& row : textRows()) {
        SCOPED_TRACE(row.name);
        EXPECT_LE(keysOf(row.spanish), 1);
        for (const std::string_view text : {row.spanish, row.portuguese, row.english}) {
            EXPECT_FALSE(text.empty());
            EXPECT_TRUE(isUtf8(text));
            EXPECT_EQ(placesOf(text), placesOf(row.spanish));
            EXPECT_EQ(keysOf(text), keysOf(row.spanish));
        }
        if (row.spanish.size() > 12) {
            EXPECT_NE(row.spanish, row.portuguese) << "not translated?";
            EXPECT_NE(row.spanish, row.english) << "not translated?";
        }
    }
}

TEST(TextTable, NumbersAscend) {
    int before = 0;
    for (const TextRow& row : textRows()) {
        const int id = static_cast<int>(row.id);
        EXPECT_GT(id, before) << row.name;
        before = id;
    }
}

TEST(Texts, ArgumentsFillTheirPlacesOnce) {
    const Texts texts(Language::English);
    constexpr TextId kTwo = TextId::FileCannotBeRead;  // "The file %1 cannot be read: %2"
    EXPECT_EQ(texts.format(kTwo, {"a.rpt", "broken"}), "The file a.rpt cannot be read: broken");
    EXPECT_EQ(texts.format(kTwo, {"%2.rpt", "%1 100%"}), "The file %2.rpt cannot be read: %1 100%");
    EXPECT_EQ(texts.format(kTwo, {"a.rpt"}), "The file a.rpt cannot be read: %2");
    EXPECT_EQ(texts.format(kTwo, {"a", "b", "c"}), "The file a cannot be read: b");
}

}  // namespace
}  // namespace campora
