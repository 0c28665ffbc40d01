// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Ground where a circle fits is what lies within its radius of a place that is at least as far from
// all covered ground: two distance maps. The maps are those of coarser cells, a fifth of a swath
// wide or less, over the box of what lies together; what they enclose is then marked cell by cell.
// The distances are exact: down the columns by counting, along the rows as the lower envelope of
// parabolas (P. Felzenszwalb and D. Huttenlocher, "Distance Transforms of Sampled Functions",
// Theory of Computing 8, 2012), in time proportional to the cells.

#include "findings/skipped_ground.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_set>
#include <utility>
#include <vector>

namespace campora {

namespace {

using Tile = CoverageGrid::Tile;
constexpr std::int32_t kTileSide = CoverageGrid::kTileSide;

/// Coarse cells in half a circle, at least, while the ground allows it.
constexpr double kCellsInRadius = 5;
/// In the box of what lies together.
constexpr std::int64_t kMostCells = 64'000'000;
constexpr float kInfinite = 1e18F;

struct CellMap {
    std::int32_t width = 0;
    std::int32_t height = 0;
    [[nodiscard]] std::size_t at(std::int32_t column, std::int32_t row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(column);
    }
    [[nodiscard]] std::size_t size() const { return at(0, height); }
};

/// Squares of the distances along the columns to the next cell of which `isSeed` is true.
template <typename IsSeed>
std::vector<float> columnDistances(const CellMap& map, IsSeed isSeed) {
    std::vector<float> distances(map.size(), kInfinite);
    std::vector<float> since(static_cast<std::size_t>(map.width));
    const auto sweep = [&](std::int32_t first, std::int32_t step) {
        std::fill(since.begin(), since.end(), std::sqrt(kInfinite));
        for (std::int32_t row = first; row >= 0 && row < map.height; row += step) {
            for (std::int32_t column = 0; column < map.width; ++column) {
                const std::size_t cell = map.at(column, row);
                float& count = since[static_cast<std::size_t>(column)];
                count = isSeed(cell) ? 0 : count + 1;
                distances[cell] = std::min(distances[cell], count * count);
            }
        }
    };
    sweep(0, 1);
    sweep(map.height - 1, -1);
    return distances;
}

/// Room for the lower envelope of one row.
struct Envelope {
    explicit Envelope(std::size_t width) : roots(width), starts(width + 1), values(width) {}
    std::vector<std::size_t> roots;
    std::vector<float> starts;
    std::vector<float> values;
};

void spreadAlong(std::span<float> row, Envelope& envelope) {
    std::vector<std::size_t>& roots = envelope.roots;
    std::vector<float>& starts = envelope.starts;
    std::vector<float>& values = envelope.values;
    std::copy(row.begin(), row.end(), values.begin());
    const auto square = [](std::size_t place) { return static_cast<float>(place * place); };
    std::size_t last = 0;
    roots[0] = 0;
    starts[0] = -kInfinite;
    starts[1] = kInfinite;
    for (std::size_t i = 1; i < row.size(); ++i) {
        const auto meetsAt = [&](std::size_t root) {
            return ((values[i] + square(i)) - (values[root] + square(root))) /
                   (2 * static_cast<float>(i - root));
        };
        float start = meetsAt(roots[last]);
        while (start <= starts[last]) {
            start = meetsAt(roots[--last]);
        }
        roots[++last] = i;
        starts[last] = start;
        starts[last + 1] = kInfinite;
    }
    last = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        while (starts[last + 1] < static_cast<float>(i)) {
            ++last;
        }
        const float away = static_cast<float>(i) - static_cast<float>(roots[last]);
        row[i] = away * away + values[roots[last]];
    }
}

/// Squares of the distances of the middles of cells to the nearest of which `isSeed` is true.
template <typename IsSeed>
std::vector<float> distancesTo(const CellMap& map, IsSeed isSeed) {
    std::vector<float> distances = columnDistances(map, isSeed);
    Envelope envelope(static_cast<std::size_t>(map.width));
    for (std::int32_t row = 0; row < map.height; ++row) {
        spreadAlong(
            std::span(distances).subspan(map.at(0, row), static_cast<std::size_t>(map.width)),
            envelope);
    }
    return distances;
}

/// The tiles that lie together: `reach` tiles apart or less.
std::vector<std::vector<const Tile*>> clustersOf(const CoverageGrid& grid, std::int32_t reach) {
    std::vector<std::vector<const Tile*>> clusters;
    std::unordered_set<const Tile*> seen;
    for (const auto& start : grid.tiles()) {
        if (!seen.insert(start.get()).second) {
            continue;
        }
        std::vector<const Tile*> cluster{start.get()};
        for (std::size_t next = 0; next < cluster.size(); ++next) {
            const Tile& from = *cluster[next];
            for (std::int32_t row = from.row - reach; row <= from.row + reach; ++row) {
                for (std::int32_t column = from.column - reach; column <= from.column + reach;
                     ++column) {
                    const Tile* const tile = grid.findTile(column, row);
                    if (tile != nullptr && seen.insert(tile).second) {
                        cluster.push_back(tile);
                    }
                }
            }
        }
        clusters.push_back(std::move(cluster));
    }
    return clusters;
}

/// Coarse cells over a cluster, with a border around them that a circle fits into.
class Neighbourhood {
public:
    /// `coarse`: cells along the side of a coarse one. `radius`: of the circle, in coarse cells.
    Neighbourhood(std::span<const Tile* const> tiles, std::int32_t coarse, double radius)
        : coarse_(coarse), radius_(radius) {
        const std::int32_t inTile = kTileSide / coarse;
        const auto border = static_cast<std::int32_t>(std::ceil(radius)) + 2;
        const auto byColumn = [](const Tile* a, const Tile* b) { return a->column < b->column; };
        const auto byRow = [](const Tile* a, const Tile* b) { return a->row < b->row; };
        const auto [west, east] = std::minmax_element(tiles.begin(), tiles.end(), byColumn);
        const auto [south, north] = std::minmax_element(tiles.begin(), tiles.end(), byRow);
        firstColumn_ = (*west)->column * inTile - border;
        firstRow_ = (*south)->row * inTile - border;
        map_.width = ((*east)->column - (*west)->column + 1) * inTile + 2 * border;
        map_.height = ((*north)->row - (*south)->row + 1) * inTile + 2 * border;
    }

    [[nodiscard]] bool isTooLarge() const {
        return std::int64_t{map_.width} * map_.height > kMostCells;
    }

    void mark(std::span<const Tile* const> tiles, CoverageGrid& grid) {
        covered_.assign(map_.size(), 0);
        for (const Tile* tile : tiles) {
            countCells(*tile);
        }
        const int half = (coarse_ * coarse_ + 1) / 2;
        const std::vector<float> toCovered =
            distancesTo(map_, [&](std::size_t cell) { return covered_[cell] >= half; });
        const auto fits = static_cast<float>((radius_ + 0.5) * (radius_ + 0.5));
        const std::vector<float> toRoom =
            distancesTo(map_, [&](std::size_t cell) { return toCovered[cell] > fits; });
        // A cell that is covered in part may be one at the outer edge.
        const auto inside = static_cast<float>((radius_ + 1.5) * (radius_ + 1.5));
        for (std::int32_t row = 0; row < map_.height; ++row) {
            for (std::int32_t column = 0; column < map_.width; ++column) {
                const std::size_t cell = map_.at(column, row);
                if (covered_[cell] < coarse_ * coarse_ &&
                    toRoom[cell] > (covered_[cell] == 0 ? fits : inside)) {
                    markCells(column, row, grid);
                }
            }
        }
    }

private:
    void countCells(const Tile& tile) {
        const std::int32_t inTile = kTileSide / coarse_;
        for (std::int32_t row = 0; row < kTileSide; ++row) {
            const auto cells = tile.part(row, 0, kTileSide);
            const std::size_t first = map_.at(tile.column * inTile - firstColumn_,
                                              tile.row * inTile - firstRow_ + row / coarse_);
            for (std::size_t i = 0; i < cells.size(); ++i) {
                covered_[first + i / static_cast<std::size_t>(coarse_)] += cells[i] != 0 ? 1 : 0;
            }
        }
    }

    void markCells(std::int32_t column, std::int32_t row, CoverageGrid& grid) const {
        const std::int32_t firstColumn = (column + firstColumn_) * coarse_;
        const std::int32_t firstRow = (row + firstRow_) * coarse_;
        for (std::int32_t v = firstRow; v < firstRow + coarse_; ++v) {
            for (std::int32_t u = firstColumn; u < firstColumn + coarse_; ++u) {
                grid.leaveOut(u, v);
            }
        }
    }

    std::int32_t coarse_;
    double radius_;
    std::int32_t firstColumn_ = 0;  // coarse cells of the lattice
    std::int32_t firstRow_ = 0;
    CellMap map_;
    /// Fine cells that are covered, of each coarse one.
    std::vector<std::int32_t> covered_;
};

}  // namespace

bool markSkippedGround(CoverageGrid& grid, double swath) {
    const double radius = swath / grid.lattice().side();  // cells
    const auto finest = static_cast<std::uint32_t>(
        std::clamp(radius / kCellsInRadius, 1.0, static_cast<double>(kTileSide)));
    const auto reach = static_cast<std::int32_t>(2 * radius / kTileSide) + 2;
    bool done = true;
    for (const std::vector<const Tile*>& cluster : clustersOf(grid, reach)) {
        auto coarse = static_cast<std::int32_t>(std::bit_floor(finest));
        while (coarse < kTileSide && Neighbourhood(cluster, coarse, radius / coarse).isTooLarge()) {
            coarse *= 2;
        }
        Neighbourhood ground(cluster, coarse, radius / coarse);
        done = done && !ground.isTooLarge();
        if (!ground.isTooLarge()) {
            ground.mark(cluster, grid);
        }
    }
    return done;
}

}  // namespace campora
