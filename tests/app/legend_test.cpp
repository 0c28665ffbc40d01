// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/legend.h"

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
    MapStyle style;
    style.scale = &scale;
    return legendContent(style, WorkKind::Sprayer, Texts(), locale);
}

SetList setOf(const std::vector<double>& values) {
    SetList set;
    for (const double value : values) {
        set.addDosis(value);
    }
    return set;
}

using Rows = std::vector<std::string>;

TEST(Legend, IntervalsAreShownWithDigitsThatTellThemApart) {
    // The extremes and what is shown of as many classes.
    const std::tuple<double, double, Rows> rows[] = {
        {0, 100, {"0 - 17", "17 - 33", "33 - 50", "50 - 67", "67 - 83", "83 - 100"}},
        {0, 3, {"0 - 1,5", "1,5 - 3"}},
        {0.12, 0.44, {"0,12 - 0,28", "0,28 - 0,44"}},
        {1000000, 1000000.4, {"1000000 - 1000000,2", "1000000,2 - 1000000,4"}},
        {14, 3649, {"14 - 1832", "1832 - 3649"}},
        {-2, 2, {"-2 - 0", "0 - 2"}},
    };
    for (const auto& [least, greatest, texts] : rows) {
        ColorScale scale;
        scale.setClassNumberExt(static_cast<int>(texts.size()), least, greatest);
        EXPECT_EQ(textsOf(legendOf(scale, FixedLocale(',')).classes), texts);
    }
}

TEST(Legend, SingleValuesStandAlone) {
    const std::pair<std::vector<double>, Rows> rows[] = {
        {{80, 150, 200}, {"80", "150", "200"}},
        {{100, 100.5, 250}, {"100", "100.5", "250"}},
        {{151.25}, {"151.3"}},
        {{0}, {"0"}},
    };
    for (const auto& [values, texts] : rows) {
        ColorScale scale;
        scale.loadFromSetList(setOf(values), 0);
        EXPECT_EQ(textsOf(legendOf(scale).classes), texts);
    }
}

TEST(Legend, ADayIsShownAsADate) {
    ColorScale scale;
    scale.loadFromSetList(setOf({43164, 43166}), 0);
    scale.isDate = true;
    EXPECT_EQ(textsOf(legendOf(scale).classes), (Rows{"05/03/2018", "07/03/2018"}));
    EXPECT_EQ(textsOf(legendOf(scale, FixedLocale('.', "yyyy-m-d")).classes),
              (Rows{"2018-3-5", "2018-3-7"}));
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

TEST(Legend, TellsWhatThePlainColoursMean) {
    const std::tuple<ColorMode, bool, WorkKind, std::size_t, Rows> rows[] = {
        {ColorMode::Dose, true, WorkKind::Sprayer, 6, {"Fumigado", "No fumigado", "Fondo"}},
        {ColorMode::Dose, false, WorkKind::Seeder, 0, {"Sembrado", "No sembrado", "Fondo"}},
        {ColorMode::Date, false, WorkKind::OlderForm, 6, {"Trabajado", "No trabajado", "Fondo"}},
        {ColorMode::Error,
         false,
         WorkKind::Sprayer,
         6,
         {"Fumigado", "No fumigado", "Fondo", "Errores > 12,5%"}},
    };
    ColorScale scale;
    MapStyle style;
    style.scale = &scale;
    style.errorLimit = 12.5F;
    for (const auto& [mode, graduated, kind, classes, reference] : rows) {
        style.mode = mode;
        style.graduated = graduated;
        const LegendContent legend = legendContent(style, kind, Texts(), FixedLocale(','));
        EXPECT_EQ(legend.classes.size(), classes) << reference.back();
        EXPECT_EQ(textsOf(legend.reference), reference);
    }
    style.mode = ColorMode::Alarm;
    style.colors = {.draw = {1}, .noDraw = {2}, .back = {3}, .alarm = {4}, .noAlarm = {5}};
    EXPECT_EQ(legendContent(style, WorkKind::Sprayer, Texts(), FixedLocale()).reference,
              (std::vector<LegendRow>{{{1}, "Fumigado"},
                                      {{2}, "No fumigado"},
                                      {{3}, "Fondo"},
                                      {{4}, "Con alarma"},
                                      {{5}, "Sin alarma"}}));
}

}  // namespace
}  // namespace campora
