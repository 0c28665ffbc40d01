// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "colour/set_list.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"

namespace campora {

void SetList::addDosis(double value) {
    if (!addToTotals(value)) {
        return;
    }
    const auto place = std::lower_bound(values_.begin(), values_.end(), value);
    if (place == values_.end() || *place != value) {
        values_.insert(place, value);
    }
}

void SetList::addDosisOld(double value) {
    if (!addToTotals(value)) {
        return;
    }
    const auto place = std::find_if(values_.begin(), values_.end(),
                                    [value](double stored) { return stored <= value; });
    if (place == values_.end() || *place != value) {
        values_.insert(place, value);
    }
}

float SetList::getRealAverage() const {
    return added_ == 0 ? 0 : static_cast<float>(sum_) / static_cast<float>(added_);
}

float SetList::getAverage() const {
    if (values_.empty()) {
        return 0;
    }
    std::int32_t total = 0;
    for (const double value : values_) {
        total = roundToInt32(total + value);
    }
    return static_cast<float>(total) / static_cast<float>(values_.size());
}

bool SetList::addToTotals(double value) {
    if (std::isnan(value)) {
        return false;
    }
    sum_ += value;
    ++added_;
    return true;
}

}  // namespace campora
