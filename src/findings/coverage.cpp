// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/coverage.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "findings/skipped_ground.h"
#include "findings/swath_survey.h"
#include "model/measures.h"
#include "model/swath_geometry.h"

namespace campora {

namespace {

/// Parts of the dosed area by which the count of cells may miss it: what is more is not chance but
/// swaths that turn over themselves.
constexpr double kChance = 0.005;

double hectares(double squareMetres) {
    return squareMetres / kSquareMetresPerHectare;
}

/// Adds the cells of a tile to the figures that are counts of cells.
void countTile(const CoverageGrid& grid, const CoverageGrid::Tile& tile, CoverageFigures& figures) {
    std::uint32_t once = 0;
    std::uint32_t twice = 0;
    std::uint32_t more = 0;
    std::uint32_t leftOut = 0;
    for (const std::uint8_t cell : tile.cells) {
        const int times = CoverageGrid::timesCovered(cell);
        once += times == 1 ? 1 : 0;
        twice += times == 2 ? 1 : 0;
        more += times > 2 ? 1 : 0;
        leftOut += CoverageGrid::isLeftOut(cell) ? 1 : 0;
    }
    const double cell = hectares(grid.cellSquareMetres(tile));
    figures.once += once * cell;
    figures.twice += twice * cell;
    figures.more += more * cell;
    figures.skipped = figures.skipped.value_or(0) + leftOut * cell;
}

/// Covered cells of a tile whose middle lies in a lot.
std::int64_t cellsInside(const CoverageGrid::Tile& tile, const LotGround& lots) {
    constexpr std::int32_t kSide = CoverageGrid::kTileSide;
    const double west = static_cast<double>(tile.column) * kSide;
    std::int64_t cells = 0;
    const auto cellFrom = [west](double place) {
        return static_cast<std::int32_t>(
            std::clamp(std::ceil(place - west - 0.5), 0.0, double{kSide}));
    };
    lots.scan(static_cast<double>(tile.row) * kSide + 0.5, 1, kSide,
              [&](int line, std::span<const LotGround::Piece> pieces) {
                  for (const LotGround::Piece& piece : pieces) {
                      const std::int32_t first = cellFrom(piece.from);
                      const auto part = tile.part(line, first, cellFrom(piece.to) - first);
                      cells += std::count_if(part.begin(), part.end(), [](std::uint8_t cell) {
                          return CoverageGrid::timesCovered(cell) > 0;
                      });
                  }
              });
    return cells;
}

double hectaresInside(const CoverageGrid& grid, const LotGround& lots) {
    double inside = 0;
    for (const auto& tile : grid.tiles()) {
        inside += static_cast<double>(cellsInside(*tile, lots)) * grid.cellSquareMetres(*tile);
    }
    return hectares(inside);
}

double visitedSquareMetres(const CoverageGrid& grid) {
    double visited = 0;
    for (const auto& tile : grid.tiles()) {
        visited += static_cast<double>(tile->visits) * grid.cellSquareMetres(*tile);
    }
    return visited;
}

/// By what counted cells are multiplied to take out what they miss by chance: all visits together
/// are the dosed area.
double correctionOf(const SwathSurvey& survey, const CoverageGrid& grid) {
    const double visited = visitedSquareMetres(grid);
    const double factor = visited > 0 ? survey.dosedSquareMetres / visited : 1;
    return std::abs(factor - 1) <= kChance ? factor : 1;
}

/// The figures without those of lots, and with the gaps that the cells say.
CoverageFigures figuresOf(const SwathSurvey& survey, const CoverageGrid& grid, double correction) {
    CoverageFigures figures;
    for (const auto& tile : grid.tiles()) {
        countTile(grid, *tile, figures);
    }
    for (double* const counted : {&figures.once, &figures.twice, &figures.more}) {
        *counted *= correction;
    }
    figures.dosed = hectares(survey.dosedSquareMetres);
    figures.undosed = hectares(survey.undosedSquareMetres);
    figures.gross = figures.dosed + figures.undosed;
    figures.net = figures.once + figures.twice + figures.more;
    figures.overlap = std::max(hectares(visitedSquareMetres(grid)) * correction - figures.net, 0.0);
    return figures;
}

}  // namespace

Coverage coverGround(std::span<const WorkLayer* const> passes, std::span<const LotRing> lots) {
    const SwathSurvey survey = surveySwaths(passes);
    Coverage coverage{{}, CoverageGrid(latticeFor(survey))};
    CoverageGrid& grid = coverage.grid;
    for (const SwathStrip& strip : survey.strips) {
        burn(strip, grid, [](std::size_t, CoverageGrid::Covered) {});
    }
    const bool estimates =
        lots.empty() && !grid.tiles().empty() && markSkippedGround(grid, survey.meanSwath());
    const double correction = correctionOf(survey, grid);
    CoverageFigures& figures = coverage.figures;
    figures = figuresOf(survey, grid, correction);
    figures.skippedIsEstimate = estimates;
    if (!lots.empty()) {
        const LotGround ground(grid.lattice(), lots);
        const double inside = hectaresInside(grid, ground);
        figures.inside = std::min(inside * correction, figures.net);
        figures.outside = figures.net - *figures.inside;
        figures.skipped = std::max(hectares(ground.squareMetres()) - inside, 0.0);
    } else if (!estimates) {
        figures.skipped.reset();
    }
    return coverage;
}

std::vector<double> newlyCovered(std::span<const WorkLayer* const> passes) {
    const SwathSurvey survey = surveySwaths(passes);
    CoverageGrid grid(latticeFor(survey));
    std::vector<double> fresh;
    double sum = 0;
    for (const SwathStrip& strip : survey.strips) {
        const std::size_t first = fresh.size();
        fresh.resize(first + strip.widths.size(), 0);
        burn(strip, grid, [&](std::size_t step, CoverageGrid::Covered covered) {
            const double metres = stepMetres(strip.points[step], strip.points[step + 1]);
            const double gross = hectares(metres * static_cast<double>(strip.widths[step]));
            // A step too short for a cell has none to say that something was there before.
            fresh[first + step] = covered.cells > 0 ? gross * covered.fresh / covered.cells : gross;
            sum += fresh[first + step];
        });
    }
    const double net = figuresOf(survey, grid, correctionOf(survey, grid)).net;
    if (sum > 0) {
        std::transform(fresh.begin(), fresh.end(), fresh.begin(),
                       [&](double step) { return step * (net / sum); });
    }
    return fresh;
}

}  // namespace campora
