// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/lon_lat.h"

namespace campora {

/// A place on a lattice, counted in cells: a cell has its middle half a cell from its corners.
struct LatticePoint {
    double u = 0;
    double v = 0;
};

/// Square cells on the ground. The lattice lies askew to the work: an edge along or across the
/// passes goes through its cells at ever other places, so that counting the cells whose middle is
/// covered gives the area of a strip of any width, where cells along the passes would give it in
/// steps of their own side.
class GroundLattice {
public:
    /// `side`: metres of a cell at the latitude of `middle`; `direction`: that of the work, radians
    /// from east, as it lies on the ground.
    GroundLattice(LonLat middle, double side, double direction);

    [[nodiscard]] double side() const { return side_; }
    [[nodiscard]] LatticePoint at(LonLat position) const {
        const double x = (position.x - middle_.x) * perDegreeX_;
        const double y = (position.y - middle_.y) * perDegreeY_;
        return {x * cosine_ + y * sine_, y * cosine_ - x * sine_};
    }
    [[nodiscard]] LonLat position(LatticePoint point) const {
        return {middle_.x + (point.u * cosine_ - point.v * sine_) / perDegreeX_,
                middle_.y + (point.u * sine_ + point.v * cosine_) / perDegreeY_};
    }
    /// Of a cell at that place: they are of one size in degrees, and so narrower towards the poles.
    [[nodiscard]] double cellSquareMetres(LatticePoint place) const;

private:
    LonLat middle_;
    double side_;
    double perDegreeX_;  // cells
    double perDegreeY_;
    double cosine_;
    double sine_;
};

}  // namespace campora
