// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/prescription_checkup.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "app/settings.h"
#include "base/text.h"
#include "base/typed_number.h"

namespace campora {

namespace {

// What separates the texts of a setting; none of them holds one.
constexpr char kBetween = '\t';
constexpr char kLineEnd = '\n';
constexpr std::size_t kFields = 3;

std::string asField(std::string text) {
    std::replace(text.begin(), text.end(), kBetween, ' ');
    std::replace(text.begin(), text.end(), kLineEnd, ' ');
    return std::string(trim(text));
}

}  // namespace

PrescriptionCheckup::PrescriptionCheckup(std::unique_ptr<GridLayer> file, PrescriptionCheck check,
                                         const Desk& desk, SettingsStore& settings)
    : file_(std::move(file)),
      check_(std::move(check)),
      desk_(desk),
      settings_(settings),
      tank_(readText(settings, SettingId::TankVolume)) {
    const std::string products = readText(settings, SettingId::CheckedProducts);
    const auto names = split(products, kBetween);
    for (std::size_t i = 0; i < check_.channels.size(); ++i) {
        products_.emplace_back(i < names.size() ? names[i] : std::string_view());
    }
    const std::string kept = readText(settings, SettingId::ProductLimits);
    for (const std::string_view line : split(kept, kLineEnd)) {
        const auto fields = split(line, kBetween);
        if (fields.size() == kFields) {
            limits_[std::string(fields[0])] = {std::string(fields[1]), std::string(fields[2])};
        }
    }
}

CheckPage PrescriptionCheckup::page() const {
    CheckWishes wishes;
    wishes.tank = typedNumber(tank_);
    for (int channel = 0; channel < channels(); ++channel) {
        wishes.limits.push_back({typedNumber(least(channel)), typedNumber(most(channel))});
    }
    return checkPage(file_ == nullptr ? nullptr : &check_, file_.get(), wishes, desk_);
}

void PrescriptionCheckup::setTank(std::string text) {
    tank_ = std::move(text);
    writeText(settings_, SettingId::TankVolume, tank_);
}

const std::string& PrescriptionCheckup::product(int channel) const {
    return products_.at(static_cast<std::size_t>(channel));
}

void PrescriptionCheckup::setProduct(int channel, std::string name) {
    products_.at(static_cast<std::size_t>(channel)) = asField(std::move(name));
    std::string names;
    for (const std::string& product : products_) {
        names.append(product).push_back(kBetween);
    }
    writeText(settings_, SettingId::CheckedProducts, names);
}

std::string PrescriptionCheckup::least(int channel) const {
    const auto found = limits_.find(product(channel));
    return found == limits_.end() ? std::string() : found->second.least;
}

std::string PrescriptionCheckup::most(int channel) const {
    const auto found = limits_.find(product(channel));
    return found == limits_.end() ? std::string() : found->second.most;
}

void PrescriptionCheckup::setLimits(int channel, std::string least, std::string most) {
    limits_[product(channel)] = {asField(std::move(least)), asField(std::move(most))};
    std::string lines;
    for (const auto& [name, limits] : limits_) {
        lines.append(name).push_back(kBetween);
        lines.append(limits.least).push_back(kBetween);
        lines.append(limits.most).push_back(kLineEnd);
    }
    writeText(settings_, SettingId::ProductLimits, lines);
}

}  // namespace campora
