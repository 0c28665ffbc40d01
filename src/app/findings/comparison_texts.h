// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/named_figure.h"
#include "findings/compare.h"
#include "model/file.h"
#include "platform/desk.h"

namespace campora {

/// A comparison as a person reads it, in the window and on the console.
struct ComparisonTexts {
    std::vector<NamedFigure> figures;
    /// A row a channel and prescribed dose, under the names of their columns.
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;
    /// What the ground is and what is not judged.
    std::string note;
};

/// `limit`: that of the comparison. `unit`: of the product.
[[nodiscard]] ComparisonTexts comparisonTexts(const Comparison& comparison, double limit,
                                              std::string_view unit, const Desk& desk);

/// What the product of the jobs is counted in; of jobs of several kinds a word for all.
[[nodiscard]] std::string productUnit(std::span<const File* const> jobs, const Texts& texts);

}  // namespace campora
