// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/failure.h"
#include "export/export_progress.h"
#include "model/gph.h"
#include "model/map_style.h"

namespace campora {

/// The polygons of the layers as a KML 2.2 document (OGC 07-147r2) in UTF-8, put together from the
/// templates "kmlhead.inc", "kmlheadb.inc", "kmlPolyhead.inc", "kmlPolyend.inc" and "kmlend.inc".
/// They are looked for without regard to case in `programFolder`, then in its folder "kml"; a
/// missing one is the failure. The points of a polygon come as the layer gives them, the last one
/// first: a ring that a layer leaves open stays open, although KML asks for closed ones. Layers
/// without polygons are left out, and under `style` steps without flow may be; a map without any
/// polygon to write is a failure. A failure leaves the file that was there, as cancelling does.
[[nodiscard]] std::optional<Failure> kmlExport(std::span<const Gph* const> layers,
                                               std::string_view path,
                                               std::string_view programFolder,
                                               const MapStyle& style, ExportProgress& progress);

}  // namespace campora
