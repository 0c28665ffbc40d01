// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/legend.h"

#include <algorithm>
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

TEST(Legend, ColoursAndUnitAreThoseOfTheScale) {
    ColorScale scale;
    scale.setClassNumberExt(3, 0, 3);
    scale.setClassColor(1, {0x123456});
    scale.unit = "lt/hect";
    const LegendContent legend = legendOf(scale);
    EXPECT_EQ(legend.unit, "lt/hect");
    ASSERT_EQ(legend.classes.size(), 3U);
    EXPECT_EQ(legend.classes[1].color, Color{0x123456});
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
    struct Row {
        const char* name;
        ColorMode mode;
        bool graduated;
        std::size_t classes;
        Rows added;  ///< to the reference of every map
    };
    const Row rows[] = {
        {"dose", ColorMode::Dose, true, 6, {}},
        {"not graduated", ColorMode::Dose, false, 0, {}},
        {"date", ColorMode::Date, false, 6, {}},
        {"alarm", ColorMode::Alarm, false, 6, {"Con alarma", "Sin alarma"}},
        {"error", ColorMode::Error, false, 6, {"Errores > 12,5%"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ColorScale scale;
        scale.unit = "lt/hect";
        MapStyle style;
        style.scale = &scale;
        style.mode = row.mode;
        style.graduated = row.graduated;
        style.errorLimit = 12.5F;
        const LegendContent legend =
            legendContent(style, WorkKind::Sprayer, Texts(), FixedLocale(','));
        EXPECT_EQ(legend.classes.size(), row.classes);
        EXPECT_EQ(legend.unit.empty(), row.classes == 0);
        Rows expected = {"Fumigado", "No fumigado", "Fondo"};
        expected.insert(expected.end(), row.added.begin(), row.added.end());
        EXPECT_EQ(textsOf(legend.reference), expected);
    }
}

TEST(Legend, PlainColoursAreNamedAfterTheWork) {
    const std::pair<WorkKind, Rows> rows[] = {
        {WorkKind::Sprayer, {"Fumigado", "No fumigado", "Fondo"}},
        {WorkKind::Seeder, {"Sembrado", "No sembrado", "Fondo"}},
        {WorkKind::OlderForm, {"Trabajado", "No trabajado", "Fondo"}},
    };
    for (const auto& [kind, names] : rows) {
        EXPECT_EQ(textsOf(legendContent({}, kind, Texts(), FixedLocale()).reference), names);
    }
}

TEST(Legend, ReferenceColoursAreTheUsersOwn) {
    MapStyle style;
    style.mode = ColorMode::Alarm;
    style.colors = {.draw = {1}, .noDraw = {2}, .back = {3}, .alarm = {4}, .noAlarm = {5}};
    const LegendContent legend =
        legendContent(style, WorkKind::Sprayer, Texts(Language::English), FixedLocale());
    EXPECT_EQ(legend.reference, (std::vector<LegendRow>{{{1}, "Sprayed"},
                                                        {{2}, "Not sprayed"},
                                                        {{3}, "Background"},
                                                        {{4}, "With alarm"},
                                                        {{5}, "Without alarm"}}));
}

}  // namespace
}  // namespace campora
