// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <system_error>

namespace campora {

namespace {

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

template <typename Float>
std::string fixedText(Float value) {
    if (!std::isfinite(value) || value == 0) {
        return "0";
    }
    // The longest text is that of the smallest double: 324 places and a few digits.
    std::array<char, 512> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

/// The end of the digits that begin at `at`.
std::size_t skipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at])) {
        ++at;
    }
    return at;
}

/// Length of digits, decimal symbol, digits and exponent at the start of `text`; the exponent may
/// lack its digits, std::from_chars leaves it alone then.
std::size_t numberLength(std::string_view text, char decimalSymbol) {
    std::size_t at = skipDigits(text, 0);
    if (at < text.size() && text[at] == decimalSymbol) {
        at = skipDigits(text, at + 1);
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
            ++at;
        }
        at = skipDigits(text, at);
    }
    return at;
}

/// Whether an unsigned number with "." as its symbol, which is out of the range of double, is too
/// small rather than too large: whether its first digit that counts stands behind the point.
bool isTooSmall(std::string_view number) {
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mantissaEnd);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_not_of("0.");
    if (first == std::string_view::npos) {
        return true;
    }
    const auto magnitude = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    std::int64_t exponent = 0;
    if (mantissaEnd < number.size()) {
        std::string_view digits = number.substr(mantissaEnd + 1);
        const bool negative = digits.starts_with('-');
        digits.remove_prefix(negative || digits.starts_with('+') ? 1 : 0);
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
        if (read.ec == std::errc::result_out_of_range) {
            return negative;
        }
        exponent = negative ? -exponent : exponent;
    }
    return exponent < -magnitude;  // their sum could wrap
}

/// `text` begins with a digit, or with "." and a digit.
std::optional<double> parseUnsigned(std::string_view text) {
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec == std::errc::result_out_of_range || !std::isfinite(value)) {
        const bool tooSmall = isTooSmall(text.substr(0, numberLength(text, '.')));
        return tooSmall ? std::optional(0.0) : std::nullopt;
    }
    return value;
}

}  // namespace

double roundHalfEven(double value) {
    // Not std::nearbyint: that one follows the rounding mode that a library may have left behind.
    const double whole = std::trunc(value);
    const double part = std::fabs(value - whole);  // exact
    if (part > 0.5 || (part == 0.5 && std::fmod(whole, 2.0) != 0)) {
        return whole + std::copysign(1.0, value);
    }
    return whole;
}

std::int32_t roundToInt32(double value) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(value > Limits::min() && value < Limits::max())) {
        if (std::isnan(value)) {
            return 0;
        }
        return value < 0 ? Limits::min() : Limits::max();
    }
    // Positions on the map round either way by chance: a branch here would be foretold wrongly half
    // the time, and a redraw rounds millions of them.
    const auto whole = static_cast<std::int32_t>(value);
    const double part = std::fabs(value - whole);  // exact
    const int away = static_cast<int>(part > 0.5) | (static_cast<int>(part == 0.5) & whole & 1);
    return value < 0 ? whole - away : whole + away;
}

std::string numberText(double value) {
    return fixedText(value);
}

std::string numberText(float value) {
    return fixedText(value);
}

std::string numberText(double value, char decimalSymbol) {
    std::string text = fixedText(value);
    std::replace(text.begin(), text.end(), '.', decimalSymbol);
    return text;
}

std::optional<double> leadingNumber(std::string_view text, char decimalSymbol) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const bool startsWithSymbol = text.starts_with(decimalSymbol);
    const std::size_t firstDigit = startsWithSymbol ? 1 : 0;
    if (firstDigit >= text.size() || !isDigit(text[firstDigit])) {
        return std::nullopt;
    }
    std::optional<double> value;
    if (decimalSymbol == '.') {
        value = parseUnsigned(text);
    } else {
        std::string pointed(text.substr(0, numberLength(text, decimalSymbol)));
        std::replace(pointed.begin(), pointed.end(), decimalSymbol, '.');
        value = parseUnsigned(pointed);
    }
    return value && negative ? -*value : value;
}

std::uint32_t leadingHex(std::string_view text) {
    constexpr std::size_t kMostDigits = 8;
    const char* const end = text.data() + std::min(text.size(), kMostDigits);
    std::uint32_t value = 0;
    std::from_chars(text.data(), end, value, 16);
    return value;
}

std::string hexText(std::uint32_t value, int digits) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (std::uint32_t rest = value; rest != 0 || text.empty(); rest >>= 4U) {
        text.push_back(kDigits[rest & 0xFU]);
    }
    const auto width = static_cast<std::size_t>(std::max(digits, 0));
    text.append(width > text.size() ? width - text.size() : 0, '0');
    std::reverse(text.begin(), text.end());
    return text;
}

}  // namespace campora
