// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/lon_lat.h"
#include "findings/coverage_grid.h"
#include "findings/ground_lattice.h"
#include "model/swath_geometry.h"
#include "model/work_layer.h"

namespace campora {

/// A pass, as far as it covers ground.
struct SwathStrip {
    std::vector<LonLat> points;
    /// Metres of every step; 0 where nothing came out.
    std::vector<float> widths;
    /// Of every step: whether it belongs to a turn so tight that swaths of it lie over each other.
    std::vector<bool> folds;
};

/// All strips of a job with what is known of them before anything is counted.
struct SwathSurvey {
    std::vector<SwathStrip> strips;
    double dosedSquareMetres = 0;
    double undosedSquareMetres = 0;
    double dosedMetres = 0;
    /// Four times the direction of each dosed step, as its length in that direction.
    double east = 0;
    double north = 0;
    LonLat least{kDateLine, kPole};
    LonLat greatest{-kDateLine, -kPole};

    [[nodiscard]] double meanSwath() const { return dosedSquareMetres / dosedMetres; }
};

[[nodiscard]] SwathSurvey surveySwaths(std::span<const WorkLayer* const> passes);

/// Cells for the ground of a job, askew to its passes. Their side is a thousandth of the side of a
/// square as large as the job, at most a sixteenth of the mean swath and a metre, at least 0.1 m;
/// damaged work beyond 50,000 hectares has larger ones.
[[nodiscard]] GroundLattice latticeFor(const SwathSurvey& survey);

/// Covers the ground of the steps of a strip that got product, in order, and calls
/// `take(step, covered)` with the number of each and what it covered. In a turn that folds, ground
/// is covered once.
template <typename Take>
void burn(const SwathStrip& strip, CoverageGrid& grid, Take take) {
    const GroundLattice& lattice = grid.lattice();
    struct Edge {
        LatticePoint left;
        LatticePoint right;
    };
    const auto edgeAt = [&](std::size_t point, float width) {
        const SwathCorners corners =
            groundSwathCorners(strip.points, point, static_cast<double>(width));
        return Edge{lattice.at(corners.left), lattice.at(corners.right)};
    };
    Edge end;
    float lastWidth = 0;
    bool isFold = false;
    for (std::size_t i = 0; i < strip.widths.size(); ++i) {
        const float width = strip.widths[i];
        if (strip.folds[i] != isFold) {
            isFold = !isFold;
            isFold ? grid.beginFold() : grid.endFold();
        }
        if (width > 0) {
            const Edge start = width == lastWidth ? end : edgeAt(i, width);
            end = edgeAt(i + 1, width);
            take(i, grid.cover({start.left, end.left, end.right, start.right}));
        }
        lastWidth = width;
    }
    if (isFold) {
        grid.endFold();
    }
}

}  // namespace campora
