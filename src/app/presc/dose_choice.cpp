// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/dose_choice.h"

#include <utility>

#include "app/summary_names.h"
#include "base/typed_number.h"

namespace campora {

DoseChoice::DoseChoice(const ColorScale* scale, float currentDose, const Session& session)
    : scale_(scale),
      session_(session),
      way_(scale == nullptr ? Way::New : Way::Existing),
      text_(numberToType(static_cast<double>(currentDose),
                         session.platform().locale.decimalSymbol())) {
    if (scale_ == nullptr) {
        return;
    }
    legend_.unit = shownUnit(scale_->unit, session_.texts());
    for (const Clase& clase : scale_->classes()) {
        // Whole, where the legend beside the map rounds: this is what the zone will get.
        legend_.classes.push_back(
            {clase.color, numberToType(clase.upper, session_.platform().locale.decimalSymbol())});
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
            warn(TextId::DoseNotChosen);
            return std::nullopt;
        }
        return static_cast<float>(scale_->getClass(*class_).upper);
    }
    const std::optional<double> typed = typedNumber(text_);
    if (!typed) {
        warn(TextId::DoseNotNumber);
        return std::nullopt;
    }
    return static_cast<float>(*typed);
}

void DoseChoice::warn(TextId text) const {
    const Texts& texts = session_.texts();
    session_.platform().dialogs.message(texts(text), MessageIcon::Exclamation,
                                        texts(TextId::ProgramName));
}

}  // namespace campora
