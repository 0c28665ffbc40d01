// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/legend.h"

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
    return legendContent(MapStyle(), &scale, WorkKind::Sprayer, Texts(), locale);
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
        {0,
         100,
         {"0 - 16,7", "16,7 - 33,3", "33,3 - 50", "50 - 66,7", "66,7 - 83,3", "83,3 - 100"}},
        {0, 3, {"0 - 1,5", "1,5 - 3"}},
        {0.12, 0.44, {"0,12 - 0,28", "0,28 - 0,44"}},
        {1000000, 1000000.4, {"1000000 - 1000000,2", "1000000,2 - 1000000,4"}},
        {14, 3649, {"14 - 1831,5", "1831,5 - 3649"}},
        {0, 121.98, {"0 - 60,99", "60,99 - 121,98"}},
        {0, 121.9999, {"0 - 60,999", "60,999 - 121,999"}},
        {0, 122.0002, {"0 - 61", "61 - 122"}},
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
        {{151.25}, {"151.25"}},
        {{72.5, 72.125}, {"72.125", "72.5"}},
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

TEST(Legend, OpenEndsSayOnWhichSideTheyAre) {
    ColorScale scale;
    scale.setClassNumberExt(3, 30, 90);
    scale.openEnds = true;
    EXPECT_EQ(textsOf(legendOf(scale).classes), (Rows{"< 50", "50 - 70", "> 70"}));
}

// A plain colour that is not on the map would be taken for the class that looks like it.
TEST(Legend, TellsWhatThePlainColoursOfTheMapMean) {
    struct Row {
        ColorMode mode;
        bool graduated;
        WorkKind kind;
        Rows reference;
        bool dotted = false;
    };
    const Row rows[] = {
        {ColorMode::Dose, true, WorkKind::Sprayer, {"Fondo"}},
        {ColorMode::Dose, true, WorkKind::Sprayer, {"No fumigado", "Fondo"}, true},
        {ColorMode::Dose, false, WorkKind::Seeder, {"Sembrado", "No sembrado", "Fondo"}},
        {ColorMode::Date, false, WorkKind::OlderForm, {"Sin fecha", "Fondo"}},
        {ColorMode::Error, false, WorkKind::Sprayer, {"Fondo", "Errores > 12,5%"}},
        {ColorMode::Alarm, true, WorkKind::Sprayer, {"Fondo", "Con alarma", "Sin alarma"}},
    };
    ColorScale scale;
    MapStyle style;
    style.scale = &scale;
    style.errorLimit = 12.5F;
    style.colors = {.draw = {1}, .noDraw = {2}, .back = {3}, .alarm = {4}, .noAlarm = {5}};
    for (const Row& row : rows) {
        style.mode = row.mode;
        style.graduated = row.graduated;
        style.drawDotted = row.dotted;
        const LegendContent legend =
            legendContent(style, nullptr, row.kind, Texts(), FixedLocale(','));
        EXPECT_EQ(textsOf(legend.reference), row.reference);
        EXPECT_TRUE(legend.classes.empty());
    }
    EXPECT_EQ(legendContent(style, nullptr, WorkKind::Sprayer, Texts(), FixedLocale()).reference,
              (std::vector<LegendRow>{{{3}, "Fondo"}, {{4}, "Con alarma"}, {{5}, "Sin alarma"}}));
}

}  // namespace
}  // namespace campora
