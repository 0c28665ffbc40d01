// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/legend.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/dates.h"
#include "support/scripted_platform.h"

namespace campora {
namespace {

std::vector<std::string> textsOf(const std::vector<LegendRow>& rows) {
    std::vector<std::string> texts;
    for (const LegendRow& row : rows) {
        texts.push_back(row.text);
    }
    return texts;
}

LegendContent legendOf(const ColorScale& scale, const UserLocale& locale = FixedLocale()) {
    return legendContent(MapStyle(), &scale, WorkKind::Sprayer, Texts(), locale);
}

using Rows = std::vector<std::string>;

TEST(Legend, IntervalsAreShownWithDigitsThatTellThemApart) {
    // The extremes and what is shown of as many classes.
    const std::tuple<double, double, Rows> rows[] = {
        {0,
         100,
         {"0 - 16,7", "16,7 - 33,3", "33,3 - 50", "50 - 66,7", "66,7 - 83,3", "83,3 - 100"}},
        {0, 3, {"0 - 1,5", "1,5 - 3"}},
        {0.12, 0.44, {"0,12 - 0,28", "0,28 - 0,44"}},
        {1000000, 1000000.4, {"1000000 - 1000000,2", "1000000,2 - 1000000,4"}},
        {14, 3649, {"14 - 1831,5", "1831,5 - 3649"}},
        {0, 121.98, {"0 - 60,99", "60,99 - 121,98"}},
        {0, 121.9999, {"0 - 60,999", "60,999 - 121,999"}},
        {0, 122.0002, {"0 - 61", "61 - 122"}},
        {-2, 2, {"-2 - 0", "0 - 2"}},
    };
    for (const auto& [least, greatest, texts] : rows) {
        ColorScale scale;
        scale.setClassNumberExt(static_cast<int>(texts.size()), least, greatest);
        EXPECT_EQ(textsOf(legendOf(scale, FixedLocale(',')).classes), texts);
    }
}

// Twelve intervals of days seldom begin and end at midnight: each must name the days that take its
// colour.
TEST(Legend, IntervalsOfDaysNameTheirFirstAndLastDay) {
    for (const int span : {12, 13, 23, 24, 100, 365}) {
        SCOPED_TRACE(span);
        constexpr int kFirst = 43000;
        ColorScale scale;
        scale.setClassNumberExt(12, kFirst, kFirst + span);
        scale.isDate = true;
        Rows expected;
        for (int i = 0; i < scale.count(); ++i) {
            std::vector<std::string> days;
            for (int day = kFirst; day <= kFirst + span; ++day) {
                if (scale.getClassIndexByValue(day) == i) {
                    days.push_back(dateText(dateOfDayNumber(day), "dd/mm/yyyy"));
                }
            }
            ASSERT_FALSE(days.empty());
            expected.push_back(days.size() == 1 ? days.front()
                                                : days.front() + " - " + days.back());
        }
        EXPECT_EQ(textsOf(legendOf(scale).classes), expected);
    }
}

TEST(Legend, OpenEndsSayOnWhichSideTheyAre) {
    ColorScale scale;
    scale.setClassNumberExt(3, 30, 90);
    scale.openEnds = true;
    EXPECT_EQ(textsOf(legendOf(scale).classes), (Rows{"< 50", "50 - 70", "> 70"}));
}

}  // namespace
}  // namespace campora
