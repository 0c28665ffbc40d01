// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>

#include "findings/coverage_grid.h"
#include "findings/lot_ground.h"
#include "model/work_layer.h"

namespace campora {

/// What a job covered, in hectares. Figures that come from counting cells are exact to 0.5 % for
/// fields from 10 hectares on, mostly to a twentieth of that.
struct CoverageFigures {
    /// Length times width of all steps, as the summary counts; `dosed` and `undosed` are its parts
    /// with and without product.
    double gross = 0;
    double dosed = 0;
    double undosed = 0;
    /// Ground that got product once or more. With `overlap` it makes up `dosed`.
    double net = 0;
    /// Ground as often as it got product again.
    double overlap = 0;
    /// The parts of `net`.
    double once = 0;
    double twice = 0;
    double more = 0;
    /// Ground of the lots without product or, without lots, an estimate of the gaps; none where no
    /// gap can be told.
    std::optional<double> skipped;
    bool skippedIsEstimate = false;
    /// Parts of `net` in and outside the lots; none without lots.
    std::optional<double> inside;
    std::optional<double> outside;
};

struct Coverage {
    CoverageFigures figures;
    CoverageGrid grid;
};

/// Burns the swaths that got product into a grid and counts. A side of its cells is a thousandth of
/// the side of a square as large as the job, at most a sixteenth of the mean swath and a metre, at
/// least 0.1 m; damaged work beyond 50,000 hectares has larger ones. `lots` may be empty.
[[nodiscard]] Coverage coverGround(std::span<const WorkLayer* const> passes,
                                   std::span<const LotRing> lots);

}  // namespace campora
