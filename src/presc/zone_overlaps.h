// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "presc/gph_presc.h"

namespace campora {

/// Pairs of records (from 1) that cover the same ground by more than a hundredth of the smaller
/// one, in ascending order; no more than `most`. The common ground is measured on up to 64 x 64
/// places of the box that both share, of which a dozen fall on ground of that size: an overlap
/// within a third of it may be told or not. In maps with so many zones on top of each other that
/// looking at all would take seconds, the search ends early.
[[nodiscard]] std::vector<std::pair<std::int32_t, std::int32_t>>
overlappingZones(const GphPresc& map, std::size_t most);

}  // namespace campora
