// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace campora {

/// The number that a person typed, with "," or "." before its decimals and blanks around it; both
/// serve, whatever the user's system prefers. None for anything else, and for numbers too large for
/// a measurement (from 10 to the 15th on).
[[nodiscard]] std::optional<double> typedNumber(std::string_view text);

/// A measured value as a person would type it: with the digits of a 32-bit float and the system's
/// decimal symbol.
[[nodiscard]] std::string numberToType(double value, char decimalSymbol);

}  // namespace campora
