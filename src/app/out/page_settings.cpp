// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/page_settings.h"

#include <cstdint>

#include "app/settings.h"

namespace campora {

namespace {

struct MarginSetting {
    SettingId id;
    std::int32_t PageMargins::*margin;
};
constexpr MarginSetting kMargins[] = {
    {SettingId::PrintMarginLeft, &PageMargins::left},
    {SettingId::PrintMarginTop, &PageMargins::top},
    {SettingId::PrintMarginRight, &PageMargins::right},
    {SettingId::PrintMarginBottom, &PageMargins::bottom},
};

struct SwitchSetting {
    SettingId id;
    bool PageSetup::*on;
};
constexpr SwitchSetting kSwitches[] = {
    {SettingId::PrintLandscape, &PageSetup::landscape},
    {SettingId::PrintLegend, &PageSetup::legend},
    {SettingId::PrintSummary, &PageSetup::summary},
    {SettingId::PrintsDescription, &PageSetup::description},
};

}  // namespace

PageSetup readPageSetup(const SettingsStore& settings) {
    PageSetup setup;
    setup.paper = paperOf(readText(settings, SettingId::PrintPaper));
    for (const auto& [id, margin] : kMargins) {
        setup.margins.*margin = readNumber(settings, id);
    }
    for (const auto& [id, on] : kSwitches) {
        setup.*on = readSwitch(settings, id);
    }
    return setup;
}

void writePageSetup(SettingsStore& settings, const PageSetup& setup) {
    writeText(settings, SettingId::PrintPaper, setup.paper.key);
    for (const auto& [id, margin] : kMargins) {
        writeNumber(settings, id, setup.margins.*margin);
    }
    for (const auto& [id, on] : kSwitches) {
        writeSwitch(settings, id, setup.*on);
    }
}

}  // namespace campora
