// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/check_page.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "app/figure_text.h"
#include "base/numbers.h"
#include "base/typed_number.h"

namespace campora {

namespace {

/// Puts one check into words.
class Writer {
public:
    Writer(const PrescriptionCheck& check, const GridLayer& file, const CheckWishes& wishes,
           const Desk& desk)
        : check_(check), file_(file), wishes_(wishes), desk_(desk), figure_(desk.locale) {}

    [[nodiscard]] std::string verdict() const {
        if (!check_.isSameGrid) {
            return std::string(desk_.texts(TextId::CheckAlone));
        }
        if (!*check_.isSameGrid) {
            return std::string(desk_.texts(TextId::CheckOtherGrid));
        }
        const std::string cells = numberText(check_.cells);
        if (const std::int64_t different = check_.different.value_or(0); different != 0) {
            return desk_.texts.format(TextId::CheckDiffers, {numberText(different), cells});
        }
        return desk_.texts.format(wasMade() ? TextId::CheckAgrees : TextId::CheckAsOpen, {cells});
    }
    void addChannel(CheckPage& page, int channel) const {
        const ChannelCheck& check = check_.channels[static_cast<std::size_t>(channel)];
        addFigure(page, channel, TextId::CheckProduct, sum(check.all));
        addFigure(page, channel, TextId::CheckInZones, sum(check.zones));
        addFigure(page, channel, TextId::CheckByFallback, sum(check.fallback));
        const std::optional<double> loads = tankLoads(check.all.product, wishes_);
        addFigure(
            page, channel, TextId::CheckLoads,
            loads ? desk_.texts.format(TextId::CheckLoadsValue,
                                       {numberText(std::ceil(*loads)), figure_.number(*loads, 2),
                                        shown(wishes_.tank.value_or(0))})
                  : std::string(kNoFigure));
        addFigure(page, channel, TextId::CheckSmallest,
                  check.smallestZone ? figure_.number(check.smallestZone, 0) + " m²"
                                     : std::string(kNoFigure));
        addWarnings(page, channel, check);
    }

private:
    /// Whether the file stands beside the maps that it was made of, not only beside itself.
    [[nodiscard]] bool wasMade() const {
        return std::any_of(check_.channels.begin(), check_.channels.end(),
                           [](const ChannelCheck& channel) { return channel.zones.has_value(); });
    }
    [[nodiscard]] std::string shown(double value) const {
        return numberToType(value, desk_.decimalSymbol());
    }
    [[nodiscard]] std::string sum(const std::optional<CellSum>& cells) const {
        return cells ? desk_.texts.format(
                           TextId::CheckProductValue,
                           {figure_.number(cells->product, 1), figure_.number(cells->hectares, 2)})
                     : std::string(kNoFigure);
    }
    void addFigure(CheckPage& page, int channel, TextId name, std::string value) const {
        page.figures.push_back(
            {desk_.texts.format(TextId::CompareChannel,
                                {numberText(channel + 1), std::string(desk_.texts(name))}),
             std::move(value)});
    }
    void addWarnings(CheckPage& page, int channel, const ChannelCheck& check) const {
        const std::string number = numberText(channel + 1);
        const auto warn = [&](TextId text, std::initializer_list<std::string> arguments) {
            page.warnings.push_back(desk_.texts.format(text, arguments));
        };
        if (check.negative > 0) {
            warn(TextId::CheckNegative, {number, numberText(check.negative)});
        }
        if (check.full > 0) {
            warn(TextId::CheckFull, {number, numberText(check.full), shown(check_.mostDose)});
        }
        for (const ChannelCheck::Rounded& dose : check.rounded) {
            warn(TextId::CheckRounded, {number, shown(dose.asked), shown(dose.written)});
        }
        const double square = check_.cellMetres * check_.cellMetres;
        if (check.smallestZone && *check.smallestZone < square) {
            warn(TextId::CheckNarrow,
                 {number, figure_.number(*check.smallestZone, 0), figure_.number(square, 0)});
        }
        const DoseLimits limits = limitsOf(wishes_, channel);
        const std::int64_t beyond =
            limits == DoseLimits() ? 0 : cellsBeyond(file_, channel, limits);
        if (beyond > 0) {
            warn(TextId::CheckLimits,
                 {number, numberText(beyond), bound(limits.least), bound(limits.most)});
        }
    }
    [[nodiscard]] std::string bound(const std::optional<double>& limit) const {
        return limit ? shown(*limit) : std::string(kNoFigure);
    }

    const PrescriptionCheck& check_;
    const GridLayer& file_;
    const CheckWishes& wishes_;
    const Desk& desk_;
    FigureText figure_;
};

}  // namespace

CheckPage checkPage(const PrescriptionCheck* check, const GridLayer* file,
                    const CheckWishes& wishes, const Desk& desk) {
    CheckPage page;
    if (check == nullptr || file == nullptr) {
        page.agrees = false;
        page.verdict = desk.texts(TextId::CheckUnreadable);
        return page;
    }
    const Writer writer(*check, *file, wishes, desk);
    page.verdict = writer.verdict();
    if (check->isSameGrid) {
        page.agrees = check->agrees();
    }
    for (int channel = 0; channel < static_cast<int>(check->channels.size()); ++channel) {
        writer.addChannel(page, channel);
    }
    if (page.warnings.empty()) {
        page.warnings.emplace_back(desk.texts(TextId::CheckNoWarnings));
    }
    return page;
}

std::optional<double> tankLoads(double product, const CheckWishes& wishes) {
    return wishes.tank.value_or(0) > 0 ? std::optional(product / *wishes.tank) : std::nullopt;
}

DoseLimits limitsOf(const CheckWishes& wishes, int channel) {
    const auto index = static_cast<std::size_t>(channel);
    return index < wishes.limits.size() ? wishes.limits[index] : DoseLimits();
}

}  // namespace campora
