// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <vector>

#include "lots/lot_file.h"

namespace campora {

/// Lots merged by `mergeOutlines`.
struct MergedLots {
    /// One a ring, each with the lines of all descriptions, none twice, at most ten.
    std::vector<LotFile> lots;
    /// Empty places that now belong to the lots that surround them.
    int holes = 0;
};

[[nodiscard]] MergedLots mergeLots(std::span<const LotFile> lots);

}  // namespace campora
