// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/page_setup.h"

#include <algorithm>
#include <iterator>

#include "app/settings.h"
#include "base/numbers.h"

namespace campora {

namespace {

constexpr TextId kOwnName{};
constexpr Paper kPapers[] = {
    {"A3", kOwnName, 297, 420},
    {"A4", kOwnName, 210, 297},
    {"A5", kOwnName, 148, 210},
    {"Letter", TextId::PaperLetter, 215.9, 279.4},
    {"Legal", TextId::PaperLegal, 215.9, 355.6},
    {"Tabloid", TextId::PaperTabloid, 279.4, 431.8},
};
constexpr std::size_t kFirstPaper = 1;

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

std::string millimetres(double length) {
    return numberText(roundToInt32(length));
}

}  // namespace

std::span<const Paper> papers() {
    return kPapers;
}

std::string paperText(const Paper& paper, const Texts& texts) {
    std::string text(paper.name == kOwnName ? paper.key : texts(paper.name));
    return text + " (" + millimetres(paper.widthMm) + " × " + millimetres(paper.heightMm) + " mm)";
}

PageRect PageSetup::sheet() const {
    return landscape ? PageRect{0, 0, paper.heightMm, paper.widthMm}
                     : PageRect{0, 0, paper.widthMm, paper.heightMm};
}

PageRect PageSetup::inside() const {
    const PageRect whole = sheet();
    return {static_cast<double>(margins.left), static_cast<double>(margins.top),
            whole.width - margins.left - margins.right,
            whole.height - margins.top - margins.bottom};
}

PageSetup readPageSetup(const SettingsStore& settings) {
    PageSetup setup;
    const std::string key = readText(settings, SettingId::PrintPaper);
    const auto* const found = std::find_if(std::begin(kPapers), std::end(kPapers),
                                           [&key](const Paper& paper) { return paper.key == key; });
    setup.paper = found == std::end(kPapers) ? kPapers[kFirstPaper] : *found;
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
