// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "colour/set_list.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(SetList, KeepsDistinctValuesAndTotalsOfAll) {
    using Values = std::vector<double>;
    const std::tuple<const char*, Values, Values, double, float, float> rows[] = {
        {"nothing", {}, {}, 0, 0, 0},
        {"repeats count in the totals", {5, 3, 5, 4}, {3, 4, 5}, 17, 4.25F, 4},
        {"halves of partial sums go to even", {0.5, 2.5}, {0.5, 2.5}, 3, 1.5F, 1},
        {"sums stay in 32 bits", {2e9, 3e9}, {2e9, 3e9}, 5e9, 2.5e9F, 2147483647.0F / 2},
        {"not-a-number is left out", {2, std::nan(""), 1}, {1, 2}, 3, 1.5F, 1.5F},
    };
    for (const auto& [name, added, ascending, sum, realAverage, average] : rows) {
        SCOPED_TRACE(name);
        SetList set;
        SetList older;
        for (const double value : added) {
            set.addDosis(value);
            older.addDosisOld(value);
        }
        EXPECT_EQ(set.getSet(), ascending);
        EXPECT_EQ(older.getSet(), std::vector<double>(ascending.rbegin(), ascending.rend()));
        EXPECT_EQ(set.count(), static_cast<int>(ascending.size()));
        for (const SetList* list : {&set, &older}) {
            EXPECT_DOUBLE_EQ(list->sum(), sum);
            EXPECT_FLOAT_EQ(list->getRealAverage(), realAverage);
        }
        EXPECT_FLOAT_EQ(set.getAverage(), average);
    }
}

TEST(SetList, SumIsTakenToSinglePrecisionBeforeDividing) {
    SetList set;
    for (const double value : {16777216, 1, 0, 0, 0}) {
        set.addDosis(value);
    }
    EXPECT_EQ(set.getRealAverage(), 3355443.25F);  // 3355443.5 from the exact sum
}

}  // namespace
}  // namespace campora
