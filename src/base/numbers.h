// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace campora {

[[nodiscard]] constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Nearest whole number, halves to even (2.5 gives 2, 3.5 gives 4).
[[nodiscard]] double roundHalfEven(double value);

/// As `roundHalfEven`, for 32-bit results: values out of range give the nearest limit, NaN gives 0.
[[nodiscard]] std::int32_t roundToInt32(double value);

/// Shortest decimal text that reads back as the same value: "." as decimal point, a zero before it,
/// no trailing zeros, never an exponent. Not-a-number and infinities give "0".
[[nodiscard]] std::string numberText(double value);
/// The same with the digits of a 32-bit float (12.3F gives "12.3").
[[nodiscard]] std::string numberText(float value);
/// Whole numbers of any width. Characters and truth values are no numbers.
template <std::integral T>
requires(!std::same_as<T, char> && !std::same_as<T, bool>) [[nodiscard]] std::string
    numberText(T value) {
    std::array<char, 24> buffer;
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

/// `numberText` with `decimalSymbol` in place of the point.
[[nodiscard]] std::string numberText(double value, char decimalSymbol);

/// The number at the start of `text`, after blanks: sign, digits, decimal symbol, digits, and an
/// exponent when digits follow it; what comes after it is ignored ("1.3b" is 1.3).
/// None when no digit stands there or the value is too large for a 64-bit float; one too small is
/// 0.
[[nodiscard]] std::optional<double> leadingNumber(std::string_view text, char decimalSymbol = '.');

/// The hexadecimal number at the start of `text`, either case; 0 when none stands there.
/// At most eight digits count.
[[nodiscard]] std::uint32_t leadingHex(std::string_view text);

/// Upper-case hexadecimal digits, left-padded with zeros to at least `digits`.
[[nodiscard]] std::string hexText(std::uint32_t value, int digits);

}  // namespace campora
