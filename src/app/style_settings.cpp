// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/style_settings.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "base/text.h"

namespace campora {

namespace {

struct ColorSetting {
    std::string_view key;
    Color MapColors::*color;
};

constexpr ColorSetting kColors[] = {
    {"mapDrawcolor", &MapColors::draw},   {"mapNoDrawcolor", &MapColors::noDraw},
    {"mapBackcolor", &MapColors::back},   {"mapForecolor", &MapColors::fore},
    {"mapAlarmColor", &MapColors::alarm}, {"mapNoAlarmColor", &MapColors::noAlarm},
    {"mapShapeColor", &MapColors::shape}, {"mapLoteColor", &MapColors::lote},
};

struct SwitchSetting {
    std::string_view key;
    bool MapStyle::*value;
};

constexpr SwitchSetting kSwitches[] = {
    {"DrawDotted", &MapStyle::drawDotted},
    {"DrawBorders", &MapStyle::drawBorders},
};

struct LanguageCode {
    std::int32_t code;
    Language language;
};

constexpr LanguageCode kLanguages[] = {
    {10, Language::Spanish}, {22, Language::Portuguese}, {9, Language::English}};

constexpr std::int32_t kMostColor = 0xFFFFFF;

/// None unless the whole text is a number of 32 bits.
std::optional<std::int32_t> readNumber(const SettingsStore& settings, std::string_view key) {
    const std::optional<std::string> stored = settings.read(key);
    const std::string_view text = stored ? trim(*stored) : std::string_view();
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

std::optional<bool> readSwitch(const SettingsStore& settings, std::string_view key) {
    const std::optional<std::string> stored = settings.read(key);
    if (stored && equalIgnoringCase(trim(*stored), "True")) {
        return true;
    }
    if (stored && equalIgnoringCase(trim(*stored), "False")) {
        return false;
    }
    return std::nullopt;
}

}  // namespace

void readStyleSettings(const SettingsStore& settings, MapStyle& style) {
    const MapStyle defaults;
    for (const auto& [key, color] : kColors) {
        const std::optional<std::int32_t> number = readNumber(settings, key);
        const bool isColor = number && *number >= 0 && *number <= kMostColor;
        style.colors.*color =
            isColor ? Color{static_cast<std::uint32_t>(*number)} : defaults.colors.*color;
    }
    for (const auto& [key, value] : kSwitches) {
        style.*value = readSwitch(settings, key).value_or(defaults.*value);
    }
}

std::optional<Language> readLanguageSetting(const SettingsStore& settings) {
    const std::optional<std::int32_t> stored = readNumber(settings, "language");
    for (const auto& [code, language] : kLanguages) {
        if (stored == code) {
            return language;
        }
    }
    return std::nullopt;
}

}  // namespace campora
