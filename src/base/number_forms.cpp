// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/number_forms.h"

#include <cstddef>

#include "base/numbers.h"

namespace campora {

namespace {

constexpr std::size_t kMostDecimals = 10;

/// One more in the last place of digits with a point among them ("9.9" becomes "10.0").
void countUp(std::string& digits) {
    for (std::size_t at = digits.size(); at-- > 0;) {
        if (digits[at] == '.') {
            continue;
        }
        if (digits[at] != '9') {
            ++digits[at];
            return;
        }
        digits[at] = '0';
    }
    digits.insert(digits.begin(), '1');
}

}  // namespace

std::string sharpNumberText(double value) {
    std::string digits = numberText(value);
    const bool negative = digits.starts_with('-');
    digits.erase(0, negative ? 1 : 0);
    if (digits.find('.') == std::string::npos) {
        digits.push_back('.');
    }
    const std::size_t end = digits.find('.') + 1 + kMostDecimals;
    if (end < digits.size()) {
        const bool up = digits[end] >= '5';
        digits.resize(end);
        if (up) {
            countUp(digits);
        }
    }
    digits.erase(digits.find_last_not_of('0') + 1);
    digits.erase(0, digits.find_first_not_of('0'));
    return negative && digits != "." ? "-" + digits : digits;
}

}  // namespace campora
