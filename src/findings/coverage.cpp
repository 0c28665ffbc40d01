// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/coverage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "findings/skipped_ground.h"
#include "model/geodesy.h"
#include "model/measures.h"
#include "model/swath_geometry.h"

namespace campora {

namespace {

/// Along the side of a square as large as the job.
constexpr double kCellsAcross = 1000;
/// In the mean swath.
constexpr double kCellsInSwath = 16;
constexpr double kSmallestCell = 0.1;  // metres
constexpr double kLargestCell = 1;
constexpr double kMostCells = 5e8;
/// Parts of the dosed area by which the count of cells may miss it: what is more is not chance but
/// swaths that turn over themselves.
constexpr double kChance = 0.005;

/// A pass, as far as it covers ground.
struct Strip {
    std::vector<LonLat> points;
    /// Metres of every step; 0 where nothing came out.
    std::vector<float> widths;
};

/// All strips of a job with what is known of them before anything is counted.
struct Survey {
    std::vector<Strip> strips;
    double dosedSquareMetres = 0;
    double undosedSquareMetres = 0;
    double dosedMetres = 0;
    /// Four times the direction of each dosed step, as its length in that direction.
    double east = 0;
    double north = 0;
    LonLat least{kDateLine, kPole};
    LonLat greatest{-kDateLine, -kPole};

    [[nodiscard]] LonLat middle() const {
        return {(least.x + greatest.x) / 2, (least.y + greatest.y) / 2};
    }
    [[nodiscard]] double meanSwath() const { return dosedSquareMetres / dosedMetres; }
    [[nodiscard]] double direction() const { return std::atan2(north, east) / 4; }
};

void addStep(Survey& survey, const WorkRecord& record, LonLat to) {
    const LonLat from = record.position;
    const double metres = stepMetres(from, to);
    const double squareMetres = metres * std::abs(static_cast<double>(record.swath));
    Strip& strip = survey.strips.back();
    strip.widths.push_back(0);
    if (!std::isfinite(squareMetres)) {
        return;
    }
    if (!record.worked) {
        survey.undosedSquareMetres += squareMetres;
        return;
    }
    strip.widths.back() = std::abs(record.swath);
    survey.dosedSquareMetres += squareMetres;
    survey.dosedMetres += metres;
    const double dx = (to.x - from.x) * cosineOfLatitude(to.y);
    const double angle = 4 * std::atan2(to.y - from.y, dx);
    survey.east += metres * std::cos(angle);
    survey.north += metres * std::sin(angle);
    for (const LonLat at : {from, to}) {
        survey.least = {std::min(survey.least.x, at.x), std::min(survey.least.y, at.y)};
        survey.greatest = {std::max(survey.greatest.x, at.x), std::max(survey.greatest.y, at.y)};
    }
}

Survey surveyOf(std::span<const WorkLayer* const> passes) {
    Survey survey;
    for (const WorkLayer* pass : passes) {
        survey.strips.emplace_back();
        WorkRecord before;
        for (std::int32_t n = 0; n < pass->recordCount(); ++n) {
            const WorkRecord record = pass->recordN(n);
            if (n > 0) {
                addStep(survey, before, record.position);
            }
            survey.strips.back().points.push_back(record.position);
            before = record;
        }
    }
    return survey;
}

GroundLattice latticeFor(const Survey& survey) {
    double side = kLargestCell;
    if (survey.dosedSquareMetres > 0) {
        const double fine = std::min(std::sqrt(survey.dosedSquareMetres) / kCellsAcross,
                                     survey.meanSwath() / kCellsInSwath);
        side = std::max(std::clamp(fine, kSmallestCell, kLargestCell),
                        std::sqrt(survey.dosedSquareMetres / kMostCells));
    }
    return {survey.middle(), side, survey.direction()};
}

void burn(const Strip& strip, CoverageGrid& grid) {
    const GroundLattice& lattice = grid.lattice();
    struct Edge {
        LatticePoint left;
        LatticePoint right;
    };
    const auto edgeAt = [&](std::size_t point, float width) {
        const SwathCorners corners = groundSwathCorners(strip.points, point, width);
        return Edge{lattice.at(corners.left), lattice.at(corners.right)};
    };
    Edge end;
    float lastWidth = 0;
    for (std::size_t i = 0; i < strip.widths.size(); ++i) {
        const float width = strip.widths[i];
        if (width > 0) {
            const Edge start = width == lastWidth ? end : edgeAt(i, width);
            end = edgeAt(i + 1, width);
            grid.cover({start.left, end.left, end.right, start.right});
        }
        lastWidth = width;
    }
}

/// Square metres, as the cells say.
struct Counted {
    double visits = 0;
    double once = 0;
    double twice = 0;
    double more = 0;
    double leftOut = 0;
    double inside = 0;

    [[nodiscard]] double net() const { return once + twice + more; }
};

void countTile(const CoverageGrid& grid, const CoverageGrid::Tile& tile, Counted& counted) {
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
    const double squareMetres = grid.cellSquareMetres(tile);
    counted.visits += static_cast<double>(tile.visits) * squareMetres;
    counted.once += once * squareMetres;
    counted.twice += twice * squareMetres;
    counted.more += more * squareMetres;
    counted.leftOut += leftOut * squareMetres;
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

void countInside(const CoverageGrid& grid, const LotGround& lots, Counted& counted) {
    for (const auto& tile : grid.tiles()) {
        counted.inside +=
            static_cast<double>(cellsInside(*tile, lots)) * grid.cellSquareMetres(*tile);
    }
}

double hectares(double squareMetres) {
    return squareMetres / kSquareMetresPerHectare;
}

/// The figures without those of lots and gaps. What cells miss by chance is taken out: all visits
/// together are the dosed area.
CoverageFigures figuresOf(const Survey& survey, const Counted& counted, double correction) {
    CoverageFigures figures;
    figures.dosed = hectares(survey.dosedSquareMetres);
    figures.undosed = hectares(survey.undosedSquareMetres);
    figures.gross = figures.dosed + figures.undosed;
    figures.once = hectares(counted.once * correction);
    figures.twice = hectares(counted.twice * correction);
    figures.more = hectares(counted.more * correction);
    figures.net = std::min(hectares(counted.net() * correction), figures.dosed);
    figures.overlap = figures.dosed - figures.net;
    return figures;
}

double correctionOf(const Survey& survey, const Counted& counted) {
    const double factor = counted.visits > 0 ? survey.dosedSquareMetres / counted.visits : 1;
    return std::abs(factor - 1) <= kChance ? factor : 1;
}

}  // namespace

Coverage coverGround(std::span<const WorkLayer* const> passes, std::span<const LotRing> lots) {
    const Survey survey = surveyOf(passes);
    Coverage coverage{{}, CoverageGrid(latticeFor(survey))};
    CoverageGrid& grid = coverage.grid;
    for (const Strip& strip : survey.strips) {
        burn(strip, grid);
    }
    const bool estimates =
        lots.empty() && !grid.tiles().empty() && markSkippedGround(grid, survey.meanSwath());
    Counted counted;
    for (const auto& tile : grid.tiles()) {
        countTile(grid, *tile, counted);
    }
    const double correction = correctionOf(survey, counted);
    CoverageFigures& figures = coverage.figures;
    figures = figuresOf(survey, counted, correction);
    if (!lots.empty()) {
        const LotGround ground(grid.lattice(), lots);
        countInside(grid, ground, counted);
        figures.inside = std::min(hectares(counted.inside * correction), figures.net);
        figures.outside = figures.net - *figures.inside;
        figures.skipped = std::max(hectares(ground.squareMetres() - counted.inside), 0.0);
    } else if (estimates) {
        figures.skipped = hectares(counted.leftOut);
        figures.skippedIsEstimate = true;
    }
    return coverage;
}

}  // namespace campora
