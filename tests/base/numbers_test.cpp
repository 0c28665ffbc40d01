// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/numbers.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace campora {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    using Whole = std::numeric_limits<std::int32_t>;
    // The library rounds halves to even in the mode that a program starts with.
    for (const double value : {0.5, 1.5, 2.5, -0.5, -1.5, 0.5000000000000001, -2.5000000000000004,
                               2147483646.5, 2147483647.4, 2147483647.5, -2147483648.5,
                               9007199254740993.0, 1e300, kInfinity, -kInfinity}) {
        const double rounded = std::nearbyint(value);
        EXPECT_EQ(roundHalfEven(value), rounded) << value;
        EXPECT_EQ(roundToInt32(value), std::clamp<double>(rounded, Whole::min(), Whole::max()))
            << value;
    }
    EXPECT_TRUE(std::isnan(roundHalfEven(kNaN)));
    EXPECT_EQ(roundToInt32(kNaN), 0);
}

TEST(NumberText, IsShortestWithoutExponent) {
    const std::pair<double, const char*> rows[] = {{-0.0, "0"},
                                                   {-0.5, "-0.5"},
                                                   {0.1 + 0.2, "0.30000000000000004"},
                                                   {1.5e-7, "0.00000015"},
                                                   {12.3F, "12.300000190734863"},
                                                   {kNaN, "0"},
                                                   {-kInfinity, "0"}};
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(numberText(value), text);
    }
    EXPECT_EQ(numberText(1e300).size(), 301U);
    EXPECT_EQ(numberText(-5e-324), "-0." + std::string(323, '0') + "5");
    EXPECT_EQ(numberText(-1234.5, ','), "-1234,5");
    EXPECT_EQ(numberText(1234.0, ','), "1234");
}

TEST(NumberText, FloatsAndWholeNumbersShowTheirOwnDigits) {
    EXPECT_EQ(numberText(12.3F), "12.3");
    EXPECT_EQ(numberText(-0.0F), "0");
    EXPECT_EQ(numberText(std::numeric_limits<float>::infinity()), "0");
    EXPECT_EQ(numberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(numberText(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(NumberText, ReadsBackAsTheSameValue) {
    std::mt19937_64 random(20260101);
    for (int i = 0; i < 20000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            const auto back = leadingNumber(numberText(value));
            ASSERT_TRUE(back.has_value()) << value;
            ASSERT_EQ(*back, value);
        }
    }
}

TEST(LeadingNumber, ReadsWhatStandsAtTheStart) {
    const std::pair<const char*, double> points[] = {
        {"1.3b", 1.3},       {" \t-12.5 ha", -12.5}, {"+7", 7},           {"-.5", -0.5},
        {"5.x", 5},          {"1.2.3", 1.2},         {"1E-2", 0.01},      {"1e+2x", 100},
        {"1e", 1},           {"5.e1", 50},           {"0x1F", 0},         {"1,5", 1},
        {"0e9999999999", 0}, {"1e-400", 0},          {"1e-9999999999", 0}};
    for (const auto& [text, value] : points) {
        EXPECT_EQ(leadingNumber(text), value) << text;
    }
    const std::pair<const char*, double> commas[] = {
        {"1.5", 1}, {",5", 0.5}, {" -3,25e1;", -32.5}, {"3,", 3}};
    for (const auto& [text, value] : commas) {
        EXPECT_EQ(leadingNumber(text, ','), value) << text;
    }
}

TEST(LeadingNumber, NoneWhereNoNumberStandsOrItIsTooLarge) {
    for (const char* text : {"", "   ", ".", "-.", ".e5", "+-5", "--5", "- 5", "e5", "\n1", "inf",
                             "-Infinity", "nan", "NaN(1)", "-1e400", "1e99999999999999999999"}) {
        EXPECT_EQ(leadingNumber(text), std::nullopt) << '"' << text << '"';
    }
    EXPECT_EQ(leadingNumber(",", ','), std::nullopt);
    EXPECT_EQ(leadingNumber("1,0e400", ','), std::nullopt);
}

TEST(Hex, LeadingDigitsCount) {
    const std::pair<const char*, std::uint32_t> rows[] = {
        {"FFx", 255}, {"g1", 0}, {"0x12", 0}, {"deadBEEF", 0xDEADBEEF}, {"000000012", 1}};
    for (const auto& [text, value] : rows) {
        EXPECT_EQ(leadingHex(text), value) << '"' << text << '"';
    }
}

}  // namespace
}  // namespace campora
