// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace campora {

/// A coordinate as lot and KML files hold it, the form "##.##########": digits only where the
/// number has them, at most ten decimals, always with the point. No zero before the point (".5"), a
/// whole number ends in the point ("58."), zero is "." alone. Ties go away from zero, decided on
/// the shortest decimal text of the value. What rounds to zero has no sign; not-a-number and
/// infinities count as 0.
[[nodiscard]] std::string sharpNumberText(double value);

/// A figure of tables, the forms "0.000" and "#0.00": exactly `decimals` digits (1 to 15) behind
/// the point and at least one before it. Ties, the sign and what is no number as above.
[[nodiscard]] std::string fixedNumberText(double value, int decimals);
/// The same decided on the digits of a 32-bit float.
[[nodiscard]] std::string fixedNumberText(float value, int decimals);

}  // namespace campora
