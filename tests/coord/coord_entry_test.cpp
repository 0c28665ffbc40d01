// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "coord/coord_entry.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace campora {
namespace {

using Axis = CoordEntry::Axis;
using Box = CoordEntry::Box;

struct Fixture {
    explicit Fixture(CoordType form, char symbol = '.')
        : locale(symbol), entry(texts, locale, form) {}

    Texts texts{Language::Spanish};
    FixedLocale locale;
    CoordEntry entry;
};

TEST(CoordEntry, ABoxHoldsAWholeNumberOrIsWrong) {
    constexpr std::nullopt_t kWrong = std::nullopt;
    const std::pair<const char*, std::optional<double>> rows[] = {
        {"34.25", 34.25}, {"34,25", 34.25}, {"-34.5", -34.5},    {" 34 ", 34.0},
        {"-.5", -0.5},    {"90", 90.0},     {"", kWrong},        {"12abc", kWrong},
        {"1e5", kWrong},  {"nan", kWrong},  {"90.0001", kWrong}, {"999999999999999999999", kWrong}};
    for (const char symbol : {'.', ','}) {
        for (const auto& [text, latitude] : rows) {
            SCOPED_TRACE(text);
            Fixture f(CoordType::Degrees, symbol);
            f.entry.setText(Box::LatDegrees, text);
            EXPECT_EQ(f.entry.isWrong(Box::LatDegrees), !latitude);
            EXPECT_FALSE(f.entry.isWrong(Box::LongDegrees));
            ASSERT_EQ(f.entry.getPoint().has_value(), latitude.has_value());
            EXPECT_EQ(f.entry.getPoint().value_or(LonLat{}).y, latitude.value_or(0));
        }
    }
}

TEST(CoordEntry, SignsTurnTheTypedValueRound) {
    Fixture f(CoordType::DegreesMinutes);
    f.entry.setText(Box::LatDegrees, "34");
    f.entry.setText(Box::LatMinutes, "15");
    f.entry.setText(Box::LongMinutes, "30");
    f.entry.setNegative(Axis::Latitude, true);
    EXPECT_EQ(f.entry.getPoint(), (LonLat{0.5, -34.25}));
    f.entry.setNegative(Axis::Longitude, true);
    f.entry.setNegative(Axis::Latitude, false);
    EXPECT_EQ(f.entry.getPoint(), (LonLat{-0.5, 34.25}));
    f.entry.setText(Box::LongDegrees, "179");
    f.entry.setText(Box::LongMinutes, "60");
    EXPECT_EQ(f.entry.getPoint(), (LonLat{-180, 34.25}));
    f.entry.setText(Box::LongMinutes, "60.1");
    EXPECT_TRUE(f.entry.isWrong(Box::LongDegrees)) << "beyond the date line";
    EXPECT_FALSE(f.entry.isWrong(Box::LongMinutes));
}

TEST(CoordEntry, IsFilledWithAPositionInItsForm) {
    const std::tuple<CoordType, LonLat, const char*> rows[] = {
        {CoordType::DegreesMinutes, {-58.3, -0.5}, "0 30 0 58 18 0 "},
        {CoordType::DegreesMinutesSeconds, {0.3, -34.2601}, "34 15 36,36 0 18 0 "},
        {CoordType::DegreesMinutesSeconds, {180, -90}, "90 0 0 180 0 0 "},
    };
    for (const auto& [form, position, texts] : rows) {
        SCOPED_TRACE(texts);
        Fixture f(form, ',');
        f.entry.setPoint(position);
        std::string filled;
        for (std::size_t i = 0; i < CoordEntry::kBoxes; ++i) {
            filled += f.entry.text(static_cast<Box>(i)) + " ";
        }
        EXPECT_EQ(filled, texts);
        const auto point = f.entry.getPoint();
        ASSERT_TRUE(point);
        EXPECT_NEAR(point->x, position.x, 1e-10);
        EXPECT_NEAR(point->y, position.y, 1e-10);
    }
}

}  // namespace
}  // namespace campora
