// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/dose_choice.h"

#include <utility>

#include "app/summary_names.h"
#include "base/typed_number.h"

namespace campora {

DoseChoice::DoseChoice(const ColorScale* scale, float currentDose, const Desk& desk)
    : scale_(scale),
      desk_(desk),
      way_(scale == nullptr ? Way::New : Way::Existing),
      text_(numberToType(static_cast<double>(currentDose), desk.decimalSymbol())) {
    if (scale_ == nullptr) {
        return;
    }
    legend_.unit = shownUnit(scale_->unit, desk_.texts);
    for (const Clase& clase : scale_->classes()) {
        // Whole, where the legend beside the map rounds: this is what the zone will get.
        legend_.classes.push_back({clase.color, numberToType(clase.upper, desk_.decimalSymbol())});
    }
}

void DoseChoice::setWay(Way way) {
    if (way == Way::New || hasExisting()) {
        way_ = way;
    }
}

void DoseChoice::selectClass(std::optional<int> index) {
    class_.reset();
    if (index && hasExisting() && *index >= 0 && *index < scale_->count()) {
        class_ = index;
        way_ = Way::Existing;
    }
}

std::optional<float> DoseChoice::accept() const {
    if (way_ == Way::Existing) {
        if (!class_) {
            desk_.tell({TextId::DoseNotChosen, {}});
            return std::nullopt;
        }
        return static_cast<float>(scale_->getClass(*class_).upper);
    }
    const std::optional<double> typed = typedNumber(text_);
    if (!typed) {
        desk_.tell({TextId::DoseNotNumber, {}});
        return std::nullopt;
    }
    return static_cast<float>(*typed);
}

}  // namespace campora
