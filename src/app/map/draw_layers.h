// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "model/gph.h"

namespace campora {

/// Whether there is nothing but lots among the layers.
[[nodiscard]] bool areLotsAlone(std::span<const Gph* const> layers);

/// Draws the layers, the first lowest, and then what some of them lay on top of all.
void drawLayers(const MapContext& context, std::span<const Gph* const> layers);

}  // namespace campora
