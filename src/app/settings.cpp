// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/settings.h"

#include <array>
#include <cassert>
#include <charconv>
#include <cstddef>
#include <limits>
#include <system_error>

#include "base/encoding.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "findings/compare.h"

namespace campora {

namespace {

constexpr std::int32_t kMostColor = 0xFFFFFF;
constexpr MapStyle kStyle;
constexpr MapColors kColors;

constexpr SettingRow number(SettingId id, std::string_view key, std::int32_t byDefault,
                            std::int32_t least, std::int32_t most) {
    return {id, key, SettingType::Number, byDefault, least, most};
}

constexpr SettingRow color(SettingId id, std::string_view key, Color byDefault) {
    return {id, key, SettingType::Color, static_cast<std::int32_t>(byDefault.value), 0, kMostColor};
}

constexpr SettingRow onOff(SettingId id, std::string_view key, bool byDefault) {
    return {id, key, SettingType::Switch, byDefault ? 1 : 0, 0, 1};
}

constexpr SettingRow text(SettingId id, std::string_view key) {
    return {id, key, SettingType::Text};
}

/// Of a printed page, in millimetres; narrow enough that even the smallest paper keeps a page.
constexpr SettingRow margin(SettingId id, std::string_view key) {
    return number(id, key, 10, 0, 30);
}

constexpr std::array kRows = {
    number(SettingId::Language, "language", kFollowSystem, std::numeric_limits<std::int32_t>::min(),
           std::numeric_limits<std::int32_t>::max()),
    color(SettingId::DrawColor, "mapDrawcolor", kColors.draw),
    color(SettingId::NoDrawColor, "mapNoDrawcolor", kColors.noDraw),
    color(SettingId::BackColor, "mapBackcolor", kColors.back),
    color(SettingId::ForeColor, "mapForecolor", kColors.fore),
    color(SettingId::AlarmColor, "mapAlarmColor", kColors.alarm),
    color(SettingId::NoAlarmColor, "mapNoAlarmColor", kColors.noAlarm),
    color(SettingId::ShapeColor, "mapShapeColor", kColors.shape),
    color(SettingId::LotColor, "mapLoteColor", kColors.lot),
    number(SettingId::CoordType, "mapCoordType", 0, 0, 2),
    onOff(SettingId::DrawDotted, "DrawDotted", kStyle.drawDotted),
    onOff(SettingId::DrawBorders, "DrawBorders", kStyle.drawBorders),
    onOff(SettingId::SpreadClasses, "spreadClasses", kStyle.spreadClasses),
    text(SettingId::RunPath, "RunPath"),
    text(SettingId::PrintDescription, "printDescription"),
    text(SettingId::OpenPath, "OpenPath"),
    text(SettingId::SavePath, "SavePath"),
    text(SettingId::ExportPath, "ExportPath"),
    text(SettingId::WorkOrdersPath, "OpenZELPath"),
    text(SettingId::OrderCopyPath, "SelectFolder"),
    text(SettingId::LotsPath, "LotesPath"),
    text(SettingId::PrescOpenPath, "PrescOpenPath"),
    text(SettingId::RecentFiles, "RecentFiles"),
    text(SettingId::WindowGeometry, "WindowGeometry"),
    text(SettingId::WindowSplitter, "WindowSplitter"),
    text(SettingId::PrintPaper, "printPaper"),
    onOff(SettingId::PrintLandscape, "printLandscape", true),
    margin(SettingId::PrintMarginLeft, "printMarginLeft"),
    margin(SettingId::PrintMarginTop, "printMarginTop"),
    margin(SettingId::PrintMarginRight, "printMarginRight"),
    margin(SettingId::PrintMarginBottom, "printMarginBottom"),
    onOff(SettingId::PrintLegend, "printLegend", true),
    onOff(SettingId::PrintSummary, "printSummary", true),
    onOff(SettingId::PrintsDescription, "printsDescription", true),
    text(SettingId::Printer, "printer"),
    number(SettingId::PrintResolution, "printResolution", 600, 150, 600),
    text(SettingId::PrintPath, "printPath"),
    text(SettingId::TankVolume, "tankVolume"),
    text(SettingId::CheckedProducts, "checkedProducts"),
    text(SettingId::ProductLimits, "productLimits"),
    text(SettingId::TargetDose, "targetDose"),
    // Of the ready ramps; 0: that of new scales.
    number(SettingId::ScaleRamp, "scaleRamp", 0, 0, 63),
    onOff(SettingId::TimeStrip, "timeStrip", false),
    number(SettingId::CompareLimit, "compareLimit", static_cast<std::int32_t>(kUsualLimit), 0,
           kMostCompareLimit),
};

constexpr bool rowsAreInOrder() {
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (kRows[i].id != static_cast<SettingId>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(rowsAreInOrder());

constexpr ColorSetting kColorSettings[] = {
    {SettingId::DrawColor, &MapColors::draw},   {SettingId::NoDrawColor, &MapColors::noDraw},
    {SettingId::BackColor, &MapColors::back},   {SettingId::ForeColor, &MapColors::fore},
    {SettingId::AlarmColor, &MapColors::alarm}, {SettingId::NoAlarmColor, &MapColors::noAlarm},
    {SettingId::ShapeColor, &MapColors::shape}, {SettingId::LotColor, &MapColors::lot},
};

struct LanguageCode {
    std::int32_t code;
    Language language;
};

constexpr LanguageCode kLanguages[] = {
    {10, Language::Spanish}, {22, Language::Portuguese}, {9, Language::English}};

const SettingRow& rowOf(SettingId id, [[maybe_unused]] SettingType type) {
    const SettingRow& row = kRows.at(static_cast<std::size_t>(id));
    assert(row.type == type);
    return row;
}

/// A number of 32 bits that takes up the whole text and lies in the row's range, or the default.
std::int32_t readInteger(const SettingsStore& settings, const SettingRow& row) {
    const std::optional<std::string> stored = settings.read(row.key);
    const std::string_view text = stored ? trim(*stored) : std::string_view();
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole && number >= row.least && number <= row.most ? number : row.byDefault;
}

}  // namespace

std::span<const SettingRow> settingRows() {
    return kRows;
}

std::int32_t readNumber(const SettingsStore& settings, SettingId id) {
    return readInteger(settings, rowOf(id, SettingType::Number));
}

Color readColor(const SettingsStore& settings, SettingId id) {
    return {static_cast<std::uint32_t>(readInteger(settings, rowOf(id, SettingType::Color)))};
}

bool readSwitch(const SettingsStore& settings, SettingId id) {
    const SettingRow& row = rowOf(id, SettingType::Switch);
    const std::optional<std::string> stored = settings.read(row.key);
    if (stored && equalIgnoringCase(trim(*stored), "True")) {
        return true;
    }
    if (stored && equalIgnoringCase(trim(*stored), "False")) {
        return false;
    }
    return row.byDefault != 0;
}

std::string readText(const SettingsStore& settings, SettingId id) {
    std::string stored = settings.read(rowOf(id, SettingType::Text).key).value_or("");
    const bool isText = isUtf8(stored) && stored.find('\0') == std::string::npos;
    return isText ? stored : std::string();
}

void writeNumber(SettingsStore& settings, SettingId id, std::int32_t value) {
    settings.write(rowOf(id, SettingType::Number).key, numberText(value));
}

void writeColor(SettingsStore& settings, SettingId id, Color value) {
    settings.write(rowOf(id, SettingType::Color).key, numberText(value.value));
}

void writeSwitch(SettingsStore& settings, SettingId id, bool value) {
    settings.write(rowOf(id, SettingType::Switch).key, value ? "True" : "False");
}

void writeText(SettingsStore& settings, SettingId id, std::string_view value) {
    settings.write(rowOf(id, SettingType::Text).key, value);
}

std::span<const ColorSetting> colorSettings() {
    return kColorSettings;
}

void readStyleSettings(const SettingsStore& settings, MapStyle& style) {
    for (const auto& [id, color] : kColorSettings) {
        style.colors.*color = readColor(settings, id);
    }
    style.drawDotted = readSwitch(settings, SettingId::DrawDotted);
    style.drawBorders = readSwitch(settings, SettingId::DrawBorders);
    style.spreadClasses = readSwitch(settings, SettingId::SpreadClasses);
    const std::optional<double> target = typedNumber(readText(settings, SettingId::TargetDose));
    style.targetDose = target.value_or(0) > 0 ? target : std::nullopt;
}

Language languageOfCode(std::int32_t code, std::int32_t systemCode) {
    const std::int32_t wanted = code == kFollowSystem ? systemCode : code;
    for (const LanguageCode& row : kLanguages) {
        if (row.code == wanted) {
            return row.language;
        }
    }
    return Language::English;
}

std::int32_t codeOfLanguage(Language language) {
    for (const LanguageCode& row : kLanguages) {
        if (row.language == language) {
            return row.code;
        }
    }
    return kFollowSystem;
}

void writeLanguageSetting(SettingsStore& settings, Language language) {
    writeNumber(settings, SettingId::Language, codeOfLanguage(language));
}

}  // namespace campora
