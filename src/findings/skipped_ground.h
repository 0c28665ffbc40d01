// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "findings/coverage_grid.h"

namespace campora {

/// Marks what was probably meant to be covered: ground without product into which a circle of two
/// swath widths across does not fit, so that covered ground encloses it on two sides or more. An
/// estimate: what is wider counts as left out on purpose, and the limit itself is exact to a fifth
/// of a swath; where a gap opens to the outside a little of its mouth is not counted.
/// `swath`: metres. False, and nothing is marked, for ground too large for it.
[[nodiscard]] bool markSkippedGround(CoverageGrid& grid, double swath);

}  // namespace campora
