// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/typed_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "base/numbers.h"
#include "base/text.h"

namespace campora {

namespace {

constexpr double kLimit = 1e15;

}  // namespace

std::optional<double> typedNumber(std::string_view text) {
    std::string typed(trim(text));
    std::replace(typed.begin(), typed.end(), ',', '.');
    const char* const first = typed.data() + (typed.starts_with('+') ? 1 : 0);
    const char* const last = typed.data() + typed.size();
    double number = 0;
    const auto [end, error] = std::from_chars(first, last, number, std::chars_format::fixed);
    const bool isWhole = error == std::errc() && end == last && !typed.starts_with("+-");
    // Not-a-number and infinity have a text of their own, which the comparison refuses.
    return isWhole && std::abs(number) < kLimit ? std::optional(number) : std::nullopt;
}

std::string numberToType(double value, char decimalSymbol) {
    std::string text = numberText(static_cast<float>(value));
    std::replace(text.begin(), text.end(), '.', decimalSymbol);
    return text;
}

}  // namespace campora
