// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/value_bounds.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"

namespace campora {

namespace {

constexpr double kHundredths = 100;
constexpr double kDecimetres = 1e6;  // of a degree, about

std::string rounded(double value, double parts, char symbol) {
    return numberText(roundHalfEven(value * parts) / parts, symbol);
}

std::string placeText(LonLat position, char symbol) {
    return "(" + rounded(position.x, kDecimetres, symbol) + "; " +
           rounded(position.y, kDecimetres, symbol) + ")";
}

}  // namespace

bool BoundsCheck::foundAny() const {
    return std::any_of(found_.begin(), found_.end(),
                       [](const Found& found) { return found.count > 0; });
}

void BoundsCheck::add(std::size_t value, double amount, std::size_t record, LonLat position) {
    Found& found = found_[value];
    if (found.count++ == 0) {
        found = {1, amount, record, position};
    }
}

void BoundsCheck::tell(File& file, const UserLocale& locale) const {
    const char symbol = locale.decimalSymbol();
    for (std::size_t value = 0; value < found_.size(); ++value) {
        const Found& found = found_[value];
        const auto& [greatest, remark] = kValueBounds[value];
        if (found.count > 0) {
            file.addRemark(
                {remark,
                 {numberText(found.count), numberText(greatest), numberText(found.record),
                  rounded(found.amount, kHundredths, symbol), placeText(found.position, symbol)}});
        }
    }
}

}  // namespace campora
