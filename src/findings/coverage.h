// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <vector>

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
    /// Ground that got product once or more. With `overlap` it makes up `dosed`, but for tight
    /// turns, whose outer side is longer than the way.
    double net = 0;
    /// Ground as often as it got product again; where the swaths of a tight turn lie over each
    /// other is no overlap.
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

/// Burns the swaths that got product into a grid (`latticeFor`) and counts. `lots` may be empty.
[[nodiscard]] Coverage coverGround(std::span<const WorkLayer* const> passes,
                                   std::span<const LotRing> lots);

/// Hectares of each step that no step before it covered, through all passes in order: ground that
/// is worked again is that of the step that worked it first. One a step, which is one less than the
/// records of a pass; 0 for a step without product. Together they are `net` of `coverGround`; where
/// nothing is covered twice each is the length times the width of its step.
[[nodiscard]] std::vector<double> newlyCovered(std::span<const WorkLayer* const> passes);

}  // namespace campora
