// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/dates.h"

#include <chrono>
#include <limits>
#include <ostream>

#include <gtest/gtest.h>

namespace campora {

namespace {

TEST(DayNumber, LimitsHold) {
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    EXPECT_EQ(dayNumber({kMost, kMost, kMost}), kMost);
    EXPECT_EQ(dayNumber({kLeast, kLeast, kLeast}), kLeast);
    EXPECT_EQ(dayNumber(dateOfDayNumber(kMost)), kMost);
    EXPECT_EQ(dayNumber(dateOfDayNumber(kLeast)), kLeast);
}

TEST(Dates, DaysAndMonthsThatDoNotExistRollOver) {
    const std::pair<Date, Date> rows[] = {
        {{2024, 3, 0}, {2024, 2, 29}},   {{2023, 2, 31}, {2023, 3, 3}},
        {{2024, 1, 0}, {2023, 12, 31}},  {{1980, 0, 0}, {1979, 11, 30}},
        {{2023, 15, 31}, {2024, 3, 31}}, {{2024, -11, 1}, {2023, 1, 1}},
        {{2024, -12, 1}, {2022, 12, 1}}};
    for (const auto& [date, rolled] : rows) {
        EXPECT_EQ(normalized(date), rolled) << testing::PrintToString(date);
    }
}

TEST(FatDateTime, FieldsOfTheWord) {
    const std::pair<std::uint32_t, DateTime> rows[] = {
        {0x00210000U, {{1980, 1, 1}, {0, 0, 0}}},
        // 44 << 9 | 5 << 5 | 17 above 13 << 11 | 45 << 5 | 29
        {0x58B16DBDU, {{2024, 5, 17}, {13, 45, 58}}},
        {0xFF9FBF7DU, {{2107, 12, 31}, {23, 59, 58}}},
    };
    for (const auto& [word, value] : rows) {
        EXPECT_EQ(decodeFatDateTime(word), value) << std::hex << word;
        EXPECT_EQ(encodeFatDateTime(value), word) << std::hex << word;
    }
    EXPECT_EQ(decodeFatDateTime(0xFFFFFFFFU), (DateTime{{2107, 15, 31}, {31, 63, 62}}));
    EXPECT_EQ(encodeFatDateTime({{2024, 5, 17}, {13, 45, 59}}), 0x58B16DBDU) << "odd second";
}

TEST(Dates, TextOfADateInTheFormOfTheUser) {
    const std::tuple<Date, const char*, const char*> rows[] = {
        {{2024, 5, 7}, "dd/MM/yyyy", "07/05/2024"},
        {{2024, 5, 7}, "d/m/yy", "7/5/24"},
        {{2009, 12, 31}, "d.M.y", "31.12.9"},
        {{812, 5, 7}, "yyyy-mm-dd", "0812-05-07"},
        {{2024, 3, 0}, "dd/mm/yyyy", "29/02/2024"},
        {{2024, 5, 7}, "yyyy\u5e74m\u6708d\u65e5", "2024\u5e745\u67087\u65e5"},
    };
    for (const auto& [date, form, text] : rows) {
        EXPECT_EQ(dateText(date, form), text) << form;
    }
    EXPECT_EQ(timeText({7, 5, 59}), "07:05:59");
}

TEST(Times, TheShorterWayAcrossMidnight) {
    EXPECT_EQ(minutesBetween({8, 30, 59}, {9, 15, 0}), 45) << "seconds do not count";
    EXPECT_EQ(minutesBetween({23, 50, 0}, {0, 10, 0}), 20);
    EXPECT_EQ(minutesBetween({8, 0, 10}, {8, 0, 5}), 0);
    EXPECT_EQ(secondsBetween({8, 0, 5}, {8, 1, 0}), 55);
    EXPECT_EQ(secondsBetween({23, 59, 59}, {0, 0, 1}), 2);
    EXPECT_EQ(secondsBetween({8, 0, 10}, {8, 0, 5}), 86395);
}

}  // namespace
}  // namespace campora
