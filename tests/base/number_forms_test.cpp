// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/number_forms.h"

#include <limits>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(SharpNumberText, ShowsDigitsOnlyWhereTheNumberHasThem) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    // Zeros of whole numbers stay, others go; the eleventh decimal rounds, a tie of the shortest
    // decimal text away from zero, and what is carried passes the point.
    const std::pair<double, const char*> rows[] = {{-58, "-58."},
                                                   {0, "."},
                                                   {-0.05, "-.05"},
                                                   {0.12345678905, ".1234567891"},
                                                   {-0.00000000005, "-.0000000001"},
                                                   {-0.00000000004, "."},
                                                   {9.99999999999, "10."},
                                                   {-kInfinity, "."}};
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(sharpNumberText(value), text) << value;
    }
}

TEST(FixedNumberText, HasTheSameNumberOfDigitsAlways) {
    // Filled up with zeros; a tie goes away from zero, and no zero has a sign.
    const std::tuple<double, int, const char*> rows[] = {
        {12.5, 3, "12.500"},    {0.05, 2, "0.05"},        {1.0005, 3, "1.001"},
        {-1.0005, 3, "-1.001"}, {1.00049999, 3, "1.000"}, {99.9996, 3, "100.000"},
        {-0.0004, 3, "0.000"}};
    for (const auto& [value, decimals, text] : rows) {
        EXPECT_EQ(fixedNumberText(value, decimals), text);
    }
    EXPECT_EQ(fixedNumberText(12.3F, 3), "12.300") << "a float has its own digits";
    EXPECT_EQ(fixedNumberText(0.0125F, 3), "0.013") << "and ties";
    EXPECT_EQ(fixedNumberText(std::numeric_limits<float>::infinity(), 3), "0.000");
}

}  // namespace
}  // namespace campora
