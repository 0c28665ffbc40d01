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

}  // namespace campora
