// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/style_settings.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace campora {
namespace {

TEST(StyleSettings, EachColourHasItsKey) {
    struct Row {
        const char* key;
        Color MapColors::*color;
    };
    const Row rows[] = {
        {"mapDrawcolor", &MapColors::draw},   {"mapNoDrawcolor", &MapColors::noDraw},
        {"mapBackcolor", &MapColors::back},   {"mapForecolor", &MapColors::fore},
        {"mapAlarmColor", &MapColors::alarm}, {"mapNoAlarmColor", &MapColors::noAlarm},
        {"mapShapeColor", &MapColors::shape}, {"mapLoteColor", &MapColors::lote},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.key);
        MemorySettings settings;
        settings.values[row.key] = "1193046";
        MapStyle style;
        readStyleSettings(settings, style);
        MapColors expected;
        expected.*row.color = {0x123456};
        EXPECT_EQ(style.colors, expected);
    }
}

TEST(StyleSettings, WhatIsMissingOrDamagedGetsItsDefault) {
    for (const char* damaged : {"", "red", "12 34", "0x12", "-5", "16777216", "99999999999"}) {
        SCOPED_TRACE(damaged);
        MemorySettings settings;
        settings.values["mapBackcolor"] = damaged;
        MapStyle style;
        style.colors.back = {0x111111};
        style.colors.fore = {0x222222};
        readStyleSettings(settings, style);
        EXPECT_EQ(style.colors, MapColors{});
    }
}

TEST(StyleSettings, SwitchesAreWords) {
    struct Row {
        const char* text;
        bool dotted, borders;
    };
    for (const Row& row : {Row{"True", true, true},
                           {"False", false, false},
                           {" true ", true, true},
                           {"1", false, true}}) {
        SCOPED_TRACE(row.text);
        MemorySettings settings;
        settings.values["DrawDotted"] = row.text;
        settings.values["DrawBorders"] = row.text;
        MapStyle style;
        readStyleSettings(settings, style);
        EXPECT_EQ(style.drawDotted, row.dotted);
        EXPECT_EQ(style.drawBorders, row.borders);
    }
}

TEST(StyleSettings, TheLanguageIsANumber) {
    struct Row {
        const char* stored;
        std::optional<Language> language;
    };
    for (const Row& row : {Row{"10", Language::Spanish},
                           {"22", Language::Portuguese},
                           {"9", Language::English},
                           {"1", std::nullopt},
                           {"es", std::nullopt}}) {
        SCOPED_TRACE(row.stored);
        MemorySettings settings;
        settings.values["language"] = row.stored;
        EXPECT_EQ(readLanguageSetting(settings), row.language);
    }
    EXPECT_EQ(readLanguageSetting(MemorySettings()), std::nullopt);
}

}  // namespace
}  // namespace campora
