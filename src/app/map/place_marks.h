// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>

#include "base/texts.h"
#include "model/bounding_box.h"
#include "model/gph.h"

namespace campora {

/// Where something lies on the map, and what it is called.
struct MarkedPlace {
    BoundingBox bound;
    std::string name;
};

/// Frames the places of less than 12 pixels and writes their names beside the frames, so that what
/// lies far from everything else is found. Places within 12 pixels of each other share a mark,
/// named after the first of them; a name for which there is no room is left out.
void drawPlaceMarks(const MapContext& context, std::span<const MarkedPlace> places,
                    const Texts& texts);

}  // namespace campora
