// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <span>
#include <vector>

#include "base/lon_lat.h"
#include "findings/ground_lattice.h"

namespace campora {

/// The outline of a lot: its vertices in degrees, not closed.
using LotRing = std::span<const LonLat>;

/// The ground inside lots, line by line of a lattice. Where lots lie over each other the ground
/// counts once; a ring that crosses itself holds what lies in an odd number of its turns.
class LotGround {
public:
    LotGround(const GroundLattice& lattice, std::span<const LotRing> rings);

    /// A piece of a line that lies in a lot; pieces come from the left and do not touch.
    struct Piece {
        double from = 0;  ///< u, cells
        double to = 0;
    };
    using Visit = std::function<void(int line, std::span<const Piece> pieces)>;
    /// Hands out the lines at `first`, `first + step` and so on.
    void scan(double first, double step, int lines, const Visit& visit) const;

    /// Of all lots together: exact to the two hundred thousandth part of their height.
    [[nodiscard]] double squareMetres() const;

private:
    struct Side {
        std::size_t ring = 0;
        LatticePoint low;
        LatticePoint high;
    };
    [[nodiscard]] static std::vector<Piece> piecesAt(double v, std::span<const Side> sides);

    GroundLattice lattice_;
    /// Ring by ring.
    std::vector<Side> sides_;
};

}  // namespace campora
