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

/// Whether there was one.
bool takeSign(std::string& digits) {
    const bool negative = digits.starts_with('-');
    digits.erase(0, negative ? 1 : 0);
    return negative;
}

/// At most this many digits behind the point, which is there afterwards.
void roundDigits(std::string& digits, std::size_t decimals) {
    std::size_t point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits.push_back('.');
    }
    const std::size_t end = point + 1 + decimals;
    if (end < digits.size()) {
        const bool up = digits[end] >= '5';
        digits.resize(end);
        if (up) {
            countUp(digits);
        }
    }
}

/// `digits`: of a number, as `numberText` gives them.
std::string withDecimals(std::string digits, int decimals) {
    const auto places = static_cast<std::size_t>(decimals);
    const bool negative = takeSign(digits);
    roundDigits(digits, places);
    digits.append(digits.find('.') + 1 + places - digits.size(), '0');
    const bool isZero = digits.find_first_not_of("0.") == std::string::npos;
    if (negative && !isZero) {
        digits.insert(digits.begin(), '-');
    }
    return digits;
}

}  // namespace

std::string sharpNumberText(double value) {
    std::string digits = numberText(value);
    const bool negative = takeSign(digits);
    roundDigits(digits, kMostDecimals);
    digits.erase(digits.find_last_not_of('0') + 1);
    digits.erase(0, digits.find_first_not_of('0'));
    return negative && digits != "." ? "-" + digits : digits;
}

std::string fixedNumberText(double value, int decimals) {
    return withDecimals(numberText(value), decimals);
}

std::string fixedNumberText(float value, int decimals) {
    return withDecimals(numberText(value), decimals);
}

}  // namespace campora
