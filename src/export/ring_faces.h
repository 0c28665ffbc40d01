// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "export/ring_segments.h"
#include "export/valid_polygon.h"

namespace campora {

/// The surfaces between the edges from which every way out crosses an odd number of them.
[[nodiscard]] std::vector<ValidPolygon> oddFaces(const SegmentGraph& graph);

}  // namespace campora
