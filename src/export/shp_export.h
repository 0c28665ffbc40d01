// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/dates.h"
#include "base/failure.h"
#include "export/export_progress.h"
#include "export/gis_form.h"
#include "model/gph.h"
#include "model/map_style.h"

namespace campora {

/// Sets of ".shp", ".shx" and ".dbf" with a ".prj" (WGS 84) and a ".cpg" (Windows-1252) beside
/// them, in the layout of the "ESRI Shapefile Technical Description" (1998) and of dBASE III.
/// `basePath`: without ending. Existing files are replaced, all of a set or none.
///
/// Layers that lack what the format needs are left out. The table has the columns of the first
/// layer when every exported layer has data, a cell of another layer being the one of the same
/// name, and a column "id" otherwise, which begins at 0 in every layer. A map without anything to
/// write is a failure and leaves no file; `progress` may cancel an export, which leaves none
/// either.

/// A record a polygon, its points as the layer gives them: open or closed, either way round. Under
/// `style`, steps without flow may be left out.
[[nodiscard]] std::optional<Failure> exportShpPolygons(std::span<const Gph* const> layers,
                                                       std::string_view basePath,
                                                       const MapStyle& style,
                                                       ExportProgress& progress);

/// A record a point.
[[nodiscard]] std::optional<Failure> exportShpPoints(std::span<const Gph* const> layers,
                                                     std::string_view basePath,
                                                     ExportProgress& progress);

/// The form that other programs take without complaint: polygons when a layer has them, else
/// points; rings closed and clockwise, what crosses itself divided into parts, without what has no
/// area; columns of all layers that have some, blank for the others, of a type that holds the cells
/// of all and wide enough for them (the format ends a text after 254 letters), three decimals also
/// in a column of integers where a cell has some, with numbers on the right; `today` as the date of
/// the table.
[[nodiscard]] std::optional<Failure> exportShpGis(std::span<const Gph* const> layers,
                                                  std::string_view basePath, const GisForm& form,
                                                  const Date& today, ExportProgress& progress);

}  // namespace campora
