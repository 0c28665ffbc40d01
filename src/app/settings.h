// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/color.h"
#include "base/texts.h"
#include "model/map_style.h"
#include "platform/settings_store.h"

namespace campora {

enum class SettingId {
    Language,
    DrawColor,
    NoDrawColor,
    BackColor,
    ForeColor,
    AlarmColor,
    NoAlarmColor,
    ShapeColor,
    LotColor,
    CoordType,
    DrawDotted,
    DrawBorders,
    SpreadClasses,
    RunPath,
    PrintDescription,
    OpenPath,
    SavePath,
    ExportPath,
    WorkOrdersPath,
    OrderCopyPath,
    LotsPath,
    PrescOpenPath,
    RecentFiles,
    WindowGeometry,
    WindowSplitter,
    PrintPaper,
    PrintLandscape,
    PrintMarginLeft,
    PrintMarginTop,
    PrintMarginRight,
    PrintMarginBottom,
    PrintLegend,
    PrintSummary,
    PrintsDescription,
    Printer,
    PrintResolution,
    PrintPath,
    TankVolume,
    CheckedProducts,
    ProductLimits,
    TargetDose,
    ScaleRamp,
    TimeStrip,
    CompareLimit,
};

/// Per cent.
inline constexpr std::int32_t kMostCompareLimit = 100;

enum class SettingType { Number, Color, Switch, Text };

/// One thing that the program remembers for its user.
struct SettingRow {
    SettingId id{};
    std::string_view key;
    SettingType type{};
    /// For numbers, colours (0x00BBGGRR) and switches (0 or 1); the default of a text is empty.
    std::int32_t byDefault = 0;
    /// Stored numbers outside of this range count as damaged.
    std::int32_t least = 0;
    std::int32_t most = 0;
};

/// All settings, in the order of `SettingId`.
[[nodiscard]] std::span<const SettingRow> settingRows();

// Reading answers the default of the row for what is missing or damaged: numbers that are none or
// out of range, words other than True and False, texts that are not UTF-8. The type asked for is
// that of the row.

[[nodiscard]] std::int32_t readNumber(const SettingsStore& settings, SettingId id);
[[nodiscard]] Color readColor(const SettingsStore& settings, SettingId id);
[[nodiscard]] bool readSwitch(const SettingsStore& settings, SettingId id);
[[nodiscard]] std::string readText(const SettingsStore& settings, SettingId id);

void writeNumber(SettingsStore& settings, SettingId id, std::int32_t value);
void writeColor(SettingsStore& settings, SettingId id, Color value);
void writeSwitch(SettingsStore& settings, SettingId id, bool value);
void writeText(SettingsStore& settings, SettingId id, std::string_view value);

/// One of the eight colours of the map and the setting that keeps it.
struct ColorSetting {
    SettingId id{};
    Color MapColors::*color = nullptr;
};

[[nodiscard]] std::span<const ColorSetting> colorSettings();

/// Colours and drawing switches as the user left them.
void readStyleSettings(const SettingsStore& settings, MapStyle& style);

/// The code that stands for the system's language.
inline constexpr std::int32_t kFollowSystem = 1;

/// The language of a code (10 Spanish, 22 Portuguese, 9 and all others English); that of
/// `systemCode` for the code that follows the system.
[[nodiscard]] Language languageOfCode(std::int32_t code, std::int32_t systemCode);
[[nodiscard]] std::int32_t codeOfLanguage(Language language);

void writeLanguageSetting(SettingsStore& settings, Language language);

}  // namespace campora
