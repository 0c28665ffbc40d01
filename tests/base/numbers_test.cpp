// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/numbers.h"

#include <bit>
#include <cfenv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace campora {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    struct Row {
        double value;
        double rounded;
    };
    const Row rows[] = {
        {0.5, 0},
        {1.5, 2},
        {2.5, 2},
        {3.5, 4},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {0.49999999999999994, 0},
        {0.5000000000000001, 1},
        {2.4999999999999996, 2},
        {2.5000000000000004, 3},
        {-2.5000000000000004, -3},
        {4503599627370495.5, 4503599627370496.0},
        {9007199254740993.0, 9007199254740993.0},
        {1e300, 1e300},
        {kInfinity, kInfinity},
        {-kInfinity, -kInfinity},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(roundHalfEven(row.value), row.rounded) << row.value;
    }
    EXPECT_TRUE(std::isnan(roundHalfEven(kNaN)));
}

TEST(Rounding, IgnoresTheRoundingModeOfTheMachine) {
    const int before = std::fegetround();
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        std::fesetround(mode);
        const double results[] = {roundHalfEven(2.5), roundHalfEven(3.5), roundHalfEven(-2.7),
                                  roundHalfEven(1e-20)};
        std::fesetround(before);
        EXPECT_EQ(results[0], 2) << mode;
        EXPECT_EQ(results[1], 4) << mode;
        EXPECT_EQ(results[2], -3) << mode;
        EXPECT_EQ(results[3], 0) << mode;
    }
}

TEST(Rounding, WholeNumbersOf32BitsStopAtTheirLimits) {
    constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
    struct Row {
        double value;
        std::int32_t rounded;
    };
    const Row rows[] = {
        {2.5, 2},
        {3.5, 4},
        {-2.5, -2},
        {-3.5, -4},
        {-0.6, -1},
        {0.49999999999999994, 0},
        {2147483646.5, kHighest - 1},
        {2147483647.4, kHighest},
        {2147483647.5, kHighest},
        {1e300, kHighest},
        {kInfinity, kHighest},
        {-2147483648.5, kLowest},
        {-2147483649.0, kLowest},
        {-kInfinity, kLowest},
        {kNaN, 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(roundToInt32(row.value), row.rounded) << row.value;
    }
}

TEST(NumberText, IsShortestWithoutExponent) {
    struct Row {
        double value;
        const char* text;
    };
    const Row rows[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {0.5, "0.5"},
        {-0.5, "-0.5"},
        {0.1, "0.1"},
        {0.1 + 0.2, "0.30000000000000004"},
        {100.0, "100"},
        {1e15, "1000000000000000"},
        {1.5e-7, "0.00000015"},
        {-34.60833333, "-34.60833333"},
        {123456789012.25, "123456789012.25"},
        {kNaN, "0"},
        {kInfinity, "0"},
        {-kInfinity, "0"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(numberText(row.value), row.text);
    }
    EXPECT_EQ(numberText(1e300).size(), 301U);
    EXPECT_EQ(numberText(-5e-324), "-0." + std::string(323, '0') + "5");
}

TEST(NumberText, FloatsShowTheirOwnDigits) {
    EXPECT_EQ(numberText(12.3F), "12.3");
    EXPECT_EQ(numberText(static_cast<double>(12.3F)), "12.300000190734863");
    EXPECT_EQ(numberText(-0.0F), "0");
    EXPECT_EQ(numberText(std::numeric_limits<float>::infinity()), "0");
    EXPECT_EQ(numberText(16777216.0F), "16777216");
}

TEST(NumberText, WholeNumbersOfEveryWidth) {
    EXPECT_EQ(numberText(0), "0");
    EXPECT_EQ(numberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(numberText(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(numberText(std::uint8_t{65}), "65");
    EXPECT_EQ(numberText(std::int16_t{-1}), "-1");
}

TEST(NumberText, TakesTheDecimalSymbolOfTheUser) {
    EXPECT_EQ(numberText(-1234.5, ','), "-1234,5");
    EXPECT_EQ(numberText(1234.0, ','), "1234");
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
    struct Row {
        const char* text;
        char symbol;
        std::optional<double> value;
    };
    const Row rows[] = {
        {"1.3b", '.', 1.3},
        {"  \t-12.5 ha", '.', -12.5},
        {"+7", '.', 7},
        {".5", '.', 0.5},
        {"-.5", '.', -0.5},
        {"5.", '.', 5},
        {"5.x", '.', 5},
        {"007", '.', 7},
        {"1.2.3", '.', 1.2},
        {"1e3", '.', 1000},
        {"1E-2", '.', 0.01},
        {"1e+2x", '.', 100},
        {"1e", '.', 1},
        {"1e+", '.', 1},
        {"1ex", '.', 1},
        {"5.e1", '.', 50},
        {"0x1F", '.', 0},
        {"1,5", '.', 1},
        {"1,5", ',', 1.5},
        {"1.5", ',', 1},
        {",5", ',', 0.5},
        {" -3,25e1;", ',', -32.5},
        {"3,", ',', 3},
        {"1e400", '.', std::nullopt},
        {"-1e400", '.', std::nullopt},
        {"1,0e400", ',', std::nullopt},
        {"1e99999999999999999999", '.', std::nullopt},
        {"0e99999999999999999999", '.', 0},
        {"1e-400", '.', 0},
        {"1e-99999999999999999999", '.', 0},
        {"", '.', std::nullopt},
        {"   ", '.', std::nullopt},
        {".", '.', std::nullopt},
        {",", ',', std::nullopt},
        {"-", '.', std::nullopt},
        {"-.", '.', std::nullopt},
        {".e5", '.', std::nullopt},
        {"+-5", '.', std::nullopt},
        {"--5", '.', std::nullopt},
        {"- 5", '.', std::nullopt},
        {"e5", '.', std::nullopt},
        {"x1", '.', std::nullopt},
        {"\n1", '.', std::nullopt},
        {"inf", '.', std::nullopt},
        {"-Infinity", '.', std::nullopt},
        {"nan", '.', std::nullopt},
        {"NaN(1)", '.', std::nullopt},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(leadingNumber(row.text, row.symbol), row.value) << '"' << row.text << '"';
    }
}

TEST(LeadingNumber, LongTextsKeepTheirSize) {
    const std::string zeros(1000, '0');
    EXPECT_EQ(leadingNumber(zeros + "12"), 12.0);
    EXPECT_EQ(leadingNumber("0." + zeros + "12"), 0.0);
    EXPECT_EQ(leadingNumber("0," + zeros + "12e1001", ','), 1.2);
    EXPECT_EQ(leadingNumber("1" + zeros), std::nullopt);
    EXPECT_EQ(leadingNumber("1" + zeros + "e-1000"), 1.0);
    EXPECT_EQ(leadingNumber("1" + zeros + "e-10"), std::nullopt);
    EXPECT_EQ(leadingNumber("1" + zeros + "e-"), std::nullopt);
    EXPECT_EQ(leadingNumber("0." + zeros + "1e"), 0.0);
}

TEST(LeadingNumber, IgnoresTheLocaleOfTheProcess) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    const char* comma = nullptr;
    for (const char* name : {"es_AR.UTF-8", "es_ES.UTF-8", "pt_BR.UTF-8", "de_DE.UTF-8"}) {
        comma = comma != nullptr ? comma : std::setlocale(LC_NUMERIC, name);
    }
    if (comma == nullptr) {
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    }
    const auto value = leadingNumber("1.5");
    const std::string text = numberText(1.5);
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(text, "1.5");
}

TEST(Hex, LeadingDigitsCount) {
    struct Row {
        const char* text;
        std::uint32_t value;
    };
    const Row rows[] = {
        {"0", 0},
        {"ff", 255},
        {"FFx", 255},
        {"1g", 1},
        {"g1", 0},
        {"", 0},
        {" 1", 0},
        {"-1", 0},
        {"deadBEEF", 0xDEADBEEF},
        {"+1", 0},
        {"FFFFFFFFF", 0xFFFFFFFF},
        {"0x12", 0},
        {"000000012", 1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(leadingHex(row.text), row.value) << '"' << row.text << '"';
    }
}

TEST(Hex, TextIsPaddedAndNeverCut) {
    EXPECT_EQ(hexText(0, 0), "0");
    EXPECT_EQ(hexText(0, 4), "0000");
    EXPECT_EQ(hexText(0x1A2B, 4), "1A2B");
    EXPECT_EQ(hexText(0x1A2B, 8), "00001A2B");
    EXPECT_EQ(hexText(0xFFFFFFFF, 4), "FFFFFFFF");
}

}  // namespace
}  // namespace campora
