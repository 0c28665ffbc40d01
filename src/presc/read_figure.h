// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "presc/gph_polygon_multi.h"
#include "presc/shape_reader.h"

namespace campora {

/// The current record of the reader: a ring a part, in order; in a record of several parts those
/// that are holes are marked. A record without parts gives a figure without rings.
[[nodiscard]] GphPolygonMulti readFigure(const ShapeReader& reader);

}  // namespace campora
