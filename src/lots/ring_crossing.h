// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "base/lon_lat.h"

namespace campora {

/// Whether edges of a closed ring meet elsewhere than at the corner that neighbours share: they
/// cross, touch or run over each other. `ring`: first point not repeated; points that repeat the
/// one before them do not count. Quick for outlines as fields have them; thousands of edges that
/// span the whole ring take the square of their number.
[[nodiscard]] bool ringCrossesItself(std::span<const LonLat> ring);

}  // namespace campora
