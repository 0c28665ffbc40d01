// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/settings.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace campora {
namespace {

/// What the program makes of a setting, as a text.
std::string valueOf(const SettingsStore& settings, const SettingRow& row) {
    switch (row.type) {
    case SettingType::Number:
        return std::to_string(readNumber(settings, row.id));
    case SettingType::Color:
        return std::to_string(readColor(settings, row.id).value);
    case SettingType::Switch:
        return readSwitch(settings, row.id) ? "True" : "False";
    case SettingType::Text:
        break;
    }
    return readText(settings, row.id);
}

TEST(Settings, WhatIsMissingHasTheDefaultOfItsKey) {
    const std::map<std::string_view, std::string> expected = {
        {"language", "1"},
        {"mapDrawcolor", "16744576"},
        {"mapNoDrawcolor", "4259584"},
        {"mapForecolor", "0"},
        {"mapBackcolor", "16777215"},
        {"mapAlarmColor", "255"},
        {"mapShapeColor", "65280"},
        {"mapNoAlarmColor", "65280"},
        {"mapLoteColor", "65535"},
        {"mapCoordType", "0"},
        {"DrawDotted", "False"},
        {"DrawBorders", "True"},
        {"RunPath", ""},
        {"printDescription", ""},
        {"OpenPath", ""},
        {"SavePath", ""},
        {"ExportPath", ""},
        {"OpenZELPath", ""},
        {"SelectFolder", ""},
        {"LotesPath", ""},
        {"PrescOpenPath", ""},
        {"RecentFiles", ""},
        {"WindowGeometry", ""},
        {"WindowSplitter", ""},
    };
    std::map<std::string_view, std::string> found;
    for (const SettingRow& row : settingRows()) {
        found[row.key] = valueOf(MemorySettings(), row);
    }
    EXPECT_EQ(found, expected);
}

TEST(Settings, NonsenseInAnyKeyIsAsGoodAsNothing) {
    struct Row {
        const char* name;
        std::string stored;
        bool isText = true;
    };
    const Row rows[] = {
        {"empty", ""},
        {"blank", " "},
        {"a word", "Verdadero"},
        {"two numbers", "12 34"},
        {"hexadecimal", "0x12"},
        {"a fraction", "1.5"},
        {"a sign", "-"},
        {"beyond 32 bits", "99999999999"},
        {"just beyond 32 bits", "2147483648"},
        {"not UTF-8", "\xC3\x28", false},
        {"a character 0", std::string("a\0b", 3), false},
    };
    for (const SettingRow& setting : settingRows()) {
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(setting.key) + ": " + row.name);
            MemorySettings settings;
            settings.values[std::string(setting.key)] = row.stored;
            const bool isKept = setting.type == SettingType::Text && row.isText;
            EXPECT_EQ(valueOf(settings, setting),
                      isKept ? row.stored : valueOf(MemorySettings(), setting));
        }
    }
}

TEST(Settings, AColourHasThreeBytes) {
    for (const char* stored : {"-1", "16777216"}) {
        MemorySettings settings;
        settings.values["mapAlarmColor"] = stored;
        EXPECT_EQ(readColor(settings, SettingId::AlarmColor), Color{0x0000FF}) << stored;
    }
}

TEST(Settings, WrittenValuesAreReadAgain) {
    MemorySettings settings;
    writeColor(settings, SettingId::LoteColor, {0xFFFFFF});
    writeNumber(settings, SettingId::CoordType, 2);
    writeSwitch(settings, SettingId::DrawBorders, false);
    writeSwitch(settings, SettingId::DrawDotted, true);
    writeText(settings, SettingId::OpenPath, "/campo/año 2018/");
    EXPECT_EQ(settings.values, (decltype(settings.values){{"mapLoteColor", "16777215"},
                                                          {"mapCoordType", "2"},
                                                          {"DrawBorders", "False"},
                                                          {"DrawDotted", "True"},
                                                          {"OpenPath", "/campo/año 2018/"}}));
    EXPECT_EQ(readColor(settings, SettingId::LoteColor), Color{0xFFFFFF});
    EXPECT_EQ(readNumber(settings, SettingId::CoordType), 2);
    EXPECT_FALSE(readSwitch(settings, SettingId::DrawBorders));
    EXPECT_EQ(readText(settings, SettingId::OpenPath), "/campo/año 2018/");
    settings.values["DrawBorders"] = " true ";
    settings.values["mapCoordType"] = "3";
    EXPECT_TRUE(readSwitch(settings, SettingId::DrawBorders));
    EXPECT_EQ(readNumber(settings, SettingId::CoordType), 0) << "no such form";
}

TEST(Settings, TheStyleTakesEachColourFromItsKey) {
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
        settings.values = {{row.key, "1193046"}, {"DrawDotted", "True"}};
        MapStyle style;
        style.colors.fore = {0x222222};
        style.drawBorders = false;
        readStyleSettings(settings, style);
        MapColors expected;
        expected.*row.color = {0x123456};
        EXPECT_EQ(style.colors, expected);
        EXPECT_TRUE(style.drawDotted);
        EXPECT_TRUE(style.drawBorders);
    }
}

TEST(Settings, LanguagesHaveCodes) {
    struct Row {
        const char* stored;
        std::int32_t system;
        std::optional<Language> chosen;
        Language shown;
    };
    const Row rows[] = {
        {"10", 22, Language::Spanish, Language::Spanish},
        {"22", 10, Language::Portuguese, Language::Portuguese},
        {"9", 10, Language::English, Language::English},
        {"7", 10, Language::English, Language::English},
        {"-1", 10, Language::English, Language::English},
        {"1", 22, std::nullopt, Language::Portuguese},
        {"es", 10, std::nullopt, Language::Spanish},
        {"", 0, std::nullopt, Language::English},
        {"1", 1, std::nullopt, Language::English},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.stored);
        MemorySettings settings;
        settings.values["language"] = row.stored;
        EXPECT_EQ(readLanguageSetting(settings), row.chosen);
        EXPECT_EQ(languageOfCode(readNumber(settings, SettingId::Language), row.system), row.shown);
        writeLanguageSetting(settings, row.shown);
        EXPECT_EQ(readLanguageSetting(settings), row.shown);
    }
}

}  // namespace
}  // namespace campora
