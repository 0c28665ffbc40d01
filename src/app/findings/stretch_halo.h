// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <utility>

#include "model/view_transform.h"
#include "model/work_layer.h"
#include "platform/map_overlay.h"

namespace campora {

/// Appends the way between two records, counted over all passes of a file: a line for each pass, as
/// far as it may touch the canvas, no finer than can be seen, and coarser where there is much of
/// it.
void addHalo(MapOverlay& overlay, std::span<const WorkLayer* const> passes,
             std::pair<std::size_t, std::size_t> records, const ViewTransform& view);

}  // namespace campora
