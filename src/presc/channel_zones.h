// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "model/bounding_box.h"
#include "presc/gph_polygon_multi.h"

namespace campora {

/// Product channels of a prescription, at most.
inline constexpr int kMostChannels = 4;

/// The zones of one product channel, as far as grids are made of them. Looks at the layer, which
/// must outlive it and not change.
struct ChannelZones {
    /// In the order of the records.
    std::span<const GphPolygonMulti> zones;
    /// Indices of the zones that can be found, in the order in which a search hands them out: where
    /// several hold a position, the last of them has it.
    std::vector<std::int32_t> order;
    /// Of all zones; not set when none has a point.
    BoundingBox bound;
    /// Mean of the doses, repeats included.
    float meanDose = 0;
    /// The map that they come from; may be empty.
    std::string path = {};
};

}  // namespace campora
