// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/number_forms.h"

#include <limits>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(SharpNumberText, ShowsDigitsOnlyWhereTheNumberHasThem) {
    const std::tuple<const char*, double, const char*> rows[] = {
        {"fraction", -58.3816, "-58.3816"},
        {"whole", -58, "-58."},
        {"zeros of a whole number stay", 100, "100."},
        {"zero", 0, "."},
        {"below one", 0.5, ".5"},
        {"below one, negative", -0.05, "-.05"},
        {"eleventh rounds down", 34.12345678914, "34.1234567891"},
        {"a tie goes up, whatever binary digits follow", 0.12345678905, ".1234567891"},
        {"a negative tie goes down", -0.00000000005, "-.0000000001"},
        {"rounds to zero", -0.00000000004, "."},
        {"carries over the point", 9.99999999999, "10."},
        {"carries up to the point", 0.99999999999, "1."},
        {"no zeros left behind after rounding", 1.29999999999, "1.3"},
        {"not a number", std::numeric_limits<double>::quiet_NaN(), "."},
        {"infinite", -std::numeric_limits<double>::infinity(), "."},
    };
    for (const auto& [name, value, text] : rows) {
        EXPECT_EQ(sharpNumberText(value), text) << name;
    }
}

TEST(FixedNumberText, HasTheSameNumberOfDigitsAlways) {
    const std::tuple<const char*, std::string, const char*> rows[] = {
        {"filled up", fixedNumberText(12.5, 3), "12.500"},
        {"below one", fixedNumberText(0.05, 2), "0.05"},
        {"a tie goes away from zero", fixedNumberText(1.0005, 3), "1.001"},
        {"a negative tie too", fixedNumberText(-1.0005, 3), "-1.001"},
        {"below the tie", fixedNumberText(1.00049999, 3), "1.000"},
        {"a float has its own digits", fixedNumberText(12.3F, 3), "12.300"},
        {"a tie of a float", fixedNumberText(0.0125F, 3), "0.013"},
        {"carries up to the front", fixedNumberText(99.9996, 3), "100.000"},
        {"no zero with a sign", fixedNumberText(-0.0004, 3), "0.000"},
        {"no number", fixedNumberText(std::numeric_limits<float>::infinity(), 3), "0.000"},
    };
    for (const auto& [name, text, expected] : rows) {
        EXPECT_EQ(text, expected) << name;
    }
}

}  // namespace
}  // namespace campora
