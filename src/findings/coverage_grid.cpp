// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The middle of a cell lies in a figure or not, and of two figures along one line in exactly one:
// a line is met at the same place from both sides, because it is always followed upwards from its
// lower end, and a cell whose middle is exactly there belongs to the figure on its right.

#include "findings/coverage_grid.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace campora {

namespace {

/// Cells from the middle of the job to a corner: farther away nothing is work.
constexpr double kFarthest = 1e9;

/// A side of a figure, from its lower end.
struct Side {
    double fromU;
    double fromV;
    double toV;
    double slope;  // u a v
};

Side sideBetween(LatticePoint a, LatticePoint b) {
    const auto [low, high] = a.v <= b.v ? std::pair(a, b) : std::pair(b, a);
    const double rise = high.v - low.v;
    return {low.u, low.v, high.v, rise > 0 ? (high.u - low.u) / rise : 0};
}

/// Answers how many had not been covered.
std::uint8_t coverOnceMore(std::span<std::uint8_t> cells) {
    std::uint8_t fresh = 0;  // as narrow as a cell, so that many are counted at once
    for (std::uint8_t& cell : cells) {
        fresh = static_cast<std::uint8_t>(fresh + (cell == 0 ? 1 : 0));
        cell = static_cast<std::uint8_t>(cell + (cell != CoverageGrid::kMostOften ? 1 : 0));
    }
    return fresh;
}

/// The first cell whose middle is not before `place`.
std::int32_t cellFrom(double place) {
    return static_cast<std::int32_t>(std::ceil(place - 0.5));
}

bool isNear(LatticePoint point) {
    return std::abs(point.u) < kFarthest && std::abs(point.v) < kFarthest;
}

}  // namespace

std::span<std::uint8_t> CoverageGrid::Tile::part(std::int32_t cellRow, std::int32_t first,
                                                 std::int32_t count) {
    return std::span(cells).subspan(static_cast<std::size_t>(cellRow) * kTileSide +
                                        static_cast<std::size_t>(first),
                                    static_cast<std::size_t>(count));
}

std::span<const std::uint8_t> CoverageGrid::Tile::part(std::int32_t cellRow, std::int32_t first,
                                                       std::int32_t count) const {
    return std::span(cells).subspan(static_cast<std::size_t>(cellRow) * kTileSide +
                                        static_cast<std::size_t>(first),
                                    static_cast<std::size_t>(count));
}

CoverageGrid::Covered CoverageGrid::cover(const std::array<LatticePoint, 4>& figure) {
    if (!std::all_of(figure.begin(), figure.end(), isNear)) {
        return {};
    }
    Covered covered;
    std::array<Side, 4> sides{};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        sides[i] = sideBetween(figure[i], figure[(i + 1) % figure.size()]);
    }
    const auto [low, high] = std::minmax({figure[0].v, figure[1].v, figure[2].v, figure[3].v});
    const std::int32_t end = cellFrom(high);
    for (std::int32_t row = cellFrom(low); row < end; ++row) {
        const double v = row + 0.5;
        std::array<double, 4> met{};
        std::size_t count = 0;
        for (const Side& side : sides) {
            if (side.fromV <= v && v < side.toV) {
                met[count++] = side.fromU + (v - side.fromV) * side.slope;
            }
        }
        if (count == 4) {
            std::sort(met.begin(), met.end());
            coverRow(row, cellFrom(met[2]), cellFrom(met[3]), covered);
        }
        const auto [left, right] = std::minmax(met[0], met[1]);
        coverRow(row, cellFrom(left), cellFrom(right), covered);
    }
    return covered;
}

void CoverageGrid::coverRow(std::int32_t row, std::int32_t first, std::int32_t end,
                            Covered& covered) {
    static_assert(kTileSide <= std::numeric_limits<std::uint8_t>::max());
    while (first < end) {
        Tile& at = tile(tileOf(first), tileOf(row));
        const std::int32_t place = placeInTile(first);
        const std::int32_t count = std::min(end - first, kTileSide - place);
        const std::span<std::uint8_t> cells = at.part(placeInTile(row), place, count);
        covered.cells += static_cast<std::uint32_t>(count);
        if (folds_) {
            coverInFold(cells, at, covered);
        } else {
            covered.fresh += coverOnceMore(cells);
            at.visits += static_cast<std::uint64_t>(count);
        }
        first += count;
    }
}

void CoverageGrid::coverInFold(std::span<std::uint8_t> cells, Tile& tile, Covered& covered) {
    folded_.push_back(cells);
    for (std::uint8_t& cell : cells) {
        if ((cell & kFolded) == 0) {
            covered.fresh += coverOnceMore({&cell, 1});
            cell |= kFolded;
            ++tile.visits;
        }
    }
}

void CoverageGrid::endFold() {
    for (const std::span<std::uint8_t> cells : folded_) {
        for (std::uint8_t& cell : cells) {
            cell &= kMostOften;
        }
    }
    folded_.clear();
    folds_ = false;
}

void CoverageGrid::leaveOut(std::int32_t column, std::int32_t row) {
    std::uint8_t& cell =
        tile(tileOf(column), tileOf(row)).part(placeInTile(row), placeInTile(column), 1).front();
    if (cell == 0) {
        cell = kLeftOut;
    }
}

std::uint64_t CoverageGrid::keyOf(std::int32_t column, std::int32_t row) {
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(column)) << 32U |
           static_cast<std::uint32_t>(row);
}

CoverageGrid::Tile& CoverageGrid::tile(std::int32_t column, std::int32_t row) {
    Tile*& recent = recent_[std::size_t{static_cast<std::uint32_t>(row) % kRecent} * kRecent +
                            static_cast<std::uint32_t>(column) % kRecent];
    if (recent != nullptr && recent->column == column && recent->row == row) {
        return *recent;
    }
    Tile*& found = byPlace_[keyOf(column, row)];
    if (found == nullptr) {
        tiles_.push_back(std::make_unique<Tile>());
        found = tiles_.back().get();
        found->column = column;
        found->row = row;
    }
    recent = found;
    return *found;
}

const CoverageGrid::Tile* CoverageGrid::findTile(std::int32_t column, std::int32_t row) const {
    const auto found = byPlace_.find(keyOf(column, row));
    return found != byPlace_.end() ? found->second : nullptr;
}

double CoverageGrid::cellSquareMetres(const Tile& tile) const {
    constexpr double kHalf = kTileSide / 2.0;
    return lattice_.cellSquareMetres(
        {tile.column * double{kTileSide} + kHalf, tile.row * double{kTileSide} + kHalf});
}

}  // namespace campora
