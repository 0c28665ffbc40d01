// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/texts.h"
#include "lots/lot.h"

namespace campora {

/// Lots merged by `mergeOutlines`.
struct MergedLots {
    /// One a ring, each with the lines of the descriptions of the lots in it, none twice, at most
    /// ten.
    std::vector<Lot> lots;
    /// Empty places that now belong to the lots that surround them.
    int holes = 0;
    /// Lots that enclose nothing; they are left out.
    int withoutArea = 0;
};

[[nodiscard]] MergedLots mergeLots(std::span<const Lot> lots);

/// What the user should know about the result, a sentence each; empty for one lot without a remark.
[[nodiscard]] std::vector<std::string> mergeRemarks(const MergedLots& merged, const Texts& texts);

}  // namespace campora
