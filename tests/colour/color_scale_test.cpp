// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "colour/color_scale.h"

#include <cmath>
#include <initializer_list>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/numbers.h"

namespace campora {
namespace {

constexpr Color kYellow = Color::rgb(255, 255, 0);
constexpr Color kRed = Color::rgb(255, 0, 0);

/// "255,170,0 0,0,0": one group a class, for readable failures.
std::string colorText(const ColorScale& scale) {
    std::string text;
    for (const Clase& one : scale.classes()) {
        text += (text.empty() ? "" : " ") + std::to_string(one.color.red()) + "," +
                std::to_string(one.color.green()) + "," + std::to_string(one.color.blue());
    }
    return text;
}

SetList setOf(std::initializer_list<double> values) {
    SetList set;
    for (const double value : values) {
        set.addDosis(value);
    }
    return set;
}

TEST(ColorScale, RampsOfTwoAndThreeColours) {
    // Of three colours and of two.
    const std::tuple<int, const char*, const char*> rows[] = {
        {2, "255,255,0 255,0,0", "255,255,0 255,0,0"},
        {4, "255,255,0 128,255,0 128,128,0 255,0,0", "255,255,0 255,170,0 255,85,0 255,0,0"},
        {7, "255,255,0 170,255,0 85,255,0 0,255,0 85,170,0 170,85,0 255,0,0",
         "255,255,0 255,212,0 255,170,0 255,128,0 255,85,0 255,42,0 255,0,0"},
    };
    for (const auto& [classes, three, two] : rows) {
        SCOPED_TRACE(classes);
        ColorScale scale;
        scale.setClassNumber(classes);
        EXPECT_EQ(colorText(scale), three);
        scale.degrade(kYellow, std::nullopt, kRed, false);
        EXPECT_EQ(colorText(scale), two);
        scale.addClass();
        EXPECT_EQ(scale.classes().back().color, kRed) << "a class more";
    }
}

// 255 / 18 in single precision is a little more than in double: the third step is 42.5 and a bit.
TEST(ColorScale, RampStepsAreSinglePrecision) {
    ColorScale scale;
    scale.setClassNumber(19);
    scale.degrade2(Color::rgb(0, 0, 0), kRed, false);
    EXPECT_EQ(scale.getClass(3).color.red(), 43);
    EXPECT_EQ(scale.getClass(18).color, kRed);
}

TEST(ColorScale, AddedAndRemovedClassesShareTheExtremes) {
    ColorScale scale;
    scale.addClass();
    ASSERT_EQ(scale.count(), 7);
    EXPECT_DOUBLE_EQ(scale.getClass(2).upper, 300.0 / 7);
    scale.quitClass();
    scale.quitClass();
    ASSERT_EQ(scale.count(), 5);
    EXPECT_EQ(scale.getClass(4), (Clase{kRed, 80, 100}));
    scale.clearClass(3, 7);
    EXPECT_EQ(scale.classes(), (std::vector{Clase{kYellow, 3, 7}}));
    EXPECT_EQ(scale.valueMax(), 100);
}

TEST(ColorScale, ClassPerValueOfASet) {
    ColorScale scale;
    scale.loadFromSetList(setOf({100, 0.1}), 0.25F);
    ASSERT_EQ(scale.count(), 2);
    const double tenth = 0.1F;
    EXPECT_EQ(scale.getClass(0), (Clase{kYellow, tenth - tenth * 0.25, tenth * 0.25 + tenth}));
    EXPECT_EQ(scale.getClass(1), (Clase{kRed, 75, 125}));
    EXPECT_EQ(scale.valueMax(), 100);

    scale.loadFromSetList(SetList(), 0);
    EXPECT_EQ(scale.count(), 2);
    scale.loadFromSetList(setOf({3}), 0);
    ASSERT_EQ(scale.count(), 1);
    EXPECT_EQ(scale.getClass(0), (Clase{kYellow, 3, 3}));
}

TEST(ColorScale, EveryValueHasAClass) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    ColorScale quarters;
    quarters.setClassNumberExt(4, 0, 100);
    for (const auto& [value, index] : {std::pair(kInfinity, 3), {-kInfinity, 0}, {0, 0}, {50, 1}}) {
        EXPECT_EQ(quarters.getClassByValue(value), &quarters.getClass(index)) << value;
        EXPECT_EQ(quarters.getColor(value), quarters.getClass(index).color) << value;
    }
    const double nan = std::nan("");
    EXPECT_EQ(quarters.getClassByValue(nan), nullptr);
    EXPECT_EQ(quarters.getClassIndexByValue(nan), 0);
    EXPECT_EQ(quarters.getColor(nan), kYellow);
    quarters.addClassManual(100, 200);
    EXPECT_EQ(quarters.getClassIndexByValue(150), 4);
}

// An edited value may leave the classes unsorted: the first that fits still takes a value.
TEST(ColorScale, TheFirstClassThatFitsTakesAValueWhateverTheOrder) {
    ColorScale scale;
    scale.loadFromSetList(setOf({10, 20, 30, 40, 50, 60, 70}), 0);
    EXPECT_EQ(scale.getClassIndexByValue(45), 4);
    EXPECT_FALSE(scale.setClassValue(1, 90));
    for (const auto& [value, index] : {std::pair(5, 0), {45, 1}, {90, 1}, {95, 6}}) {
        EXPECT_EQ(scale.getClassIndexByValue(value), index) << value;
    }
}

TEST(ColorScaleListeners, MayComeAndGoWhileTheyAreCalled) {
    auto scale = std::make_unique<ColorScale>();
    std::string heard;
    ColorScale::Subscription first;
    ColorScale::Subscription second;
    ColorScale::Subscription late;
    first = scale->onChanged([&] {
        heard += 'a';
        second.reset();
        late = scale->onChanged([&] { heard += 'c'; });
        first.reset();
    });
    second = scale->onChanged([&] { heard += 'b'; });
    scale->setClassColor(0, kRed);
    EXPECT_EQ(heard, "a");
    scale->setClassColor(0, kRed);
    EXPECT_EQ(heard, "ac");
    scale.reset();
    late.reset();  // a subscription may outlive the scale
}

}  // namespace
}  // namespace campora
