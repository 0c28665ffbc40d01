// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "colour/set_list.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "base/numbers.h"

namespace campora {

namespace {

/// Fewer values than these are not worth a merge.
constexpr std::size_t kMostWaiting = 64;

}  // namespace

void SetList::addDosis(double value) {
    if (!addToTotals(value)) {
        return;
    }
    const auto end = values_.begin() + static_cast<std::ptrdiff_t>(sorted_);
    if (std::binary_search(values_.begin(), end, value)) {
        return;
    }
    // Many distinct values are not put into their places one by one, which would move all that
    // follow each time: they wait behind the others until as many more have come.
    values_.push_back(value);
    if (values_.size() > 2 * sorted_ + kMostWaiting) {
        sortIn();
    }
}

void SetList::sortIn() const {
    const auto waiting = values_.begin() + static_cast<std::ptrdiff_t>(sorted_);
    std::stable_sort(waiting, values_.end());
    std::inplace_merge(values_.begin(), waiting, values_.end());
    values_.erase(std::unique(values_.begin(), values_.end()), values_.end());
    sorted_ = values_.size();
}

const std::vector<double>& SetList::getSet() const {
    if (sorted_ < values_.size()) {
        sortIn();
    }
    return values_;
}

void SetList::addDosisOld(double value) {
    if (!addToTotals(value)) {
        return;
    }
    const auto place = std::find_if(values_.begin(), values_.end(),
                                    [value](double stored) { return stored <= value; });
    if (place == values_.end() || *place != value) {
        values_.insert(place, value);
        sorted_ = values_.size();
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
    for (const double value : getSet()) {
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
