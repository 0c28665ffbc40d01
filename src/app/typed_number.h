// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace campora {

/// The number that a person typed, with "," or "." before its decimals and blanks around it; both
/// serve, whatever the user's system prefers. None for anything else, and for numbers too large for
/// a measurement (from 10 to the 15th on).
[[nodiscard]] std::optional<double> typedNumber(std::string_view text);

}  // namespace campora
