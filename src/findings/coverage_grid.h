// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

#include "findings/ground_lattice.h"

namespace campora {

/// How often the cells of a lattice were covered. Only ground that something covers has memory: a
/// byte a cell, a tile at a time.
class CoverageGrid {
public:
    /// Cells along a side of a tile.
    static constexpr std::int32_t kTileSide = 128;
    /// A cell that was covered more often counts as this.
    static constexpr std::uint8_t kMostOften = 127;

    /// Cells count from the first of the tile, row by row.
    struct Tile {
        std::int32_t column = 0;  ///< of tiles
        std::int32_t row = 0;
        /// Cells covered, each as often as it was.
        std::uint64_t visits = 0;
        std::array<std::uint8_t, std::size_t{kTileSide} * kTileSide> cells{};

        /// A part of a row of cells, both counted in the tile.
        [[nodiscard]] std::span<std::uint8_t> part(std::int32_t cellRow, std::int32_t first,
                                                   std::int32_t count);
        [[nodiscard]] std::span<const std::uint8_t> part(std::int32_t cellRow, std::int32_t first,
                                                         std::int32_t count) const;
    };

    /// Cells that a figure covers, and those of them that nothing had covered before.
    struct Covered {
        std::uint32_t cells = 0;
        std::uint32_t fresh = 0;
    };

    explicit CoverageGrid(const GroundLattice& lattice) : lattice_(lattice) {}

    [[nodiscard]] const GroundLattice& lattice() const { return lattice_; }
    /// Covers the cells whose middle lies in the figure, once more; what it goes round twice is
    /// outside. Figures that share a side share no cell and leave none between them. One with a
    /// corner that is no number, or too far away for any field, is left out.
    Covered cover(const std::array<LatticePoint, 4>& figure);
    /// Between these two calls a cell is covered once, however often a figure lies on it.
    void beginFold() { folds_ = true; }
    void endFold();
    /// When everything is covered: says of a cell that it was left out; nothing for a covered one.
    void leaveOut(std::int32_t column, std::int32_t row);

    [[nodiscard]] const std::vector<std::unique_ptr<Tile>>& tiles() const { return tiles_; }
    /// Null where nothing is covered.
    [[nodiscard]] const Tile* findTile(std::int32_t column, std::int32_t row) const;
    /// Of a cell of the tile.
    [[nodiscard]] double cellSquareMetres(const Tile& tile) const;

    /// What a cell says.
    [[nodiscard]] static constexpr int timesCovered(std::uint8_t cell) { return cell & kMostOften; }
    [[nodiscard]] static constexpr bool isLeftOut(std::uint8_t cell) { return cell == kLeftOut; }
    /// The tile of a cell, along one axis, and the place of the cell in it.
    [[nodiscard]] static constexpr std::int32_t tileOf(std::int32_t cell) {
        return cell >> kTileBits;
    }
    [[nodiscard]] static constexpr std::int32_t placeInTile(std::int32_t cell) {
        return cell & (kTileSide - 1);
    }

private:
    static constexpr int kTileBits = 7;
    static_assert(1 << kTileBits == kTileSide);
    static constexpr std::uint8_t kLeftOut = 0x80;
    /// While a fold is open: covered in it.
    static constexpr std::uint8_t kFolded = 0x80;
    /// Along a side of the square of tiles of which the last used are at hand.
    static constexpr std::uint32_t kRecent = 8;

    [[nodiscard]] static std::uint64_t keyOf(std::int32_t column, std::int32_t row);
    Tile& tile(std::int32_t column, std::int32_t row);
    void coverRow(std::int32_t row, std::int32_t first, std::int32_t end, Covered& covered);
    void coverInFold(std::span<std::uint8_t> cells, Tile& tile, Covered& covered);

    GroundLattice lattice_;
    bool folds_ = false;
    /// What was covered in the open fold.
    std::vector<std::span<std::uint8_t>> folded_;
    std::vector<std::unique_ptr<Tile>> tiles_;
    std::unordered_map<std::uint64_t, Tile*> byPlace_;
    std::array<Tile*, std::size_t{kRecent} * kRecent> recent_{};
};

}  // namespace campora
