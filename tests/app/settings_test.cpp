// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/settings.h"

#include <string>

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

TEST(Settings, NonsenseInAnyKeyIsAsGoodAsNothing) {
    const std::string texts[] = {"",    " ", "Verdadero",   "12 34",     "0x12",
                                 "1.5", "-", "99999999999", "2147483648"};
    const std::string noTexts[] = {"\xC3\x28", std::string("a\0b", 3)};
    for (const SettingRow& setting : settingRows()) {
        SCOPED_TRACE(setting.key);
        const std::string byDefault = valueOf(MemorySettings(), setting);
        MemorySettings settings;
        std::string& stored = settings.values[std::string(setting.key)];
        for (const std::string& text : texts) {
            stored = text;
            EXPECT_EQ(valueOf(settings, setting),
                      setting.type == SettingType::Text ? text : byDefault);
        }
        for (const std::string& bytes : noTexts) {
            stored = bytes;
            EXPECT_EQ(valueOf(settings, setting), byDefault);
        }
    }
}

TEST(Settings, WrittenValuesAreReadAgain) {
    MemorySettings settings;
    writeColor(settings, SettingId::LotColor, {0xFFFFFF});
    writeNumber(settings, SettingId::CoordType, 2);
    writeSwitch(settings, SettingId::DrawBorders, false);
    writeSwitch(settings, SettingId::DrawDotted, true);
    writeText(settings, SettingId::OpenPath, "/campo/año 2018/");
    EXPECT_EQ(settings.values, (decltype(settings.values){{"mapLoteColor", "16777215"},
                                                          {"mapCoordType", "2"},
                                                          {"DrawBorders", "False"},
                                                          {"DrawDotted", "True"},
                                                          {"OpenPath", "/campo/año 2018/"}}));
    for (const SettingRow& row : settingRows()) {
        if (const auto found = settings.values.find(row.key); found != settings.values.end()) {
            EXPECT_EQ(valueOf(settings, row), found->second);
        }
    }
    settings.values["DrawBorders"] = " true ";
    settings.values["mapCoordType"] = "3";
    EXPECT_TRUE(readSwitch(settings, SettingId::DrawBorders));
    EXPECT_EQ(readNumber(settings, SettingId::CoordType), 0) << "no such form";
}

}  // namespace
}  // namespace campora
