// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "sample_job/plane.h"

namespace campora::sample {

/// The outline of a field, clockwise, first place not repeated, at least three places, without two
/// edges that reverse each other.
using Ring = std::vector<Place>;

/// The ring whose edges run `metres` inside those of `ring`. It has the same places in the same
/// order, so a bend tighter than that distance is not taken out.
[[nodiscard]] Ring movedInwards(const Ring& ring, double metres);

/// Where the line across the field at `y` enters and leaves the ring, ascending, in pairs.
[[nodiscard]] std::vector<double> crossings(const Ring& ring, double y);

/// Greatest y of the ring.
[[nodiscard]] double topOf(const Ring& ring);

}  // namespace campora::sample
