// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/ground_lattice.h"

#include <cmath>

#include "model/geodesy.h"

namespace campora {

namespace {

/// The tangent of the angle to the work. No number is farther from all fractions of small numbers.
constexpr double kGoldenSection = 0.6180339887498949;

}  // namespace

GroundLattice::GroundLattice(LonLat middle, double side, double direction)
    : middle_(middle),
      side_(side),
      perDegreeX_(metresPerDegreeEast(middle.y) / side),
      perDegreeY_(METERS_PER_DEGREE / side),
      cosine_(std::cos(direction + std::atan(kGoldenSection))),
      sine_(std::sin(direction + std::atan(kGoldenSection))) {}

double GroundLattice::cellSquareMetres(LatticePoint place) const {
    return side_ * side_ * cosineOfLatitude(position(place).y) / cosineOfLatitude(middle_.y);
}

}  // namespace campora
