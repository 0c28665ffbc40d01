// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/failure.h"
#include "export/export_progress.h"
#include "export/gis_form.h"
#include "model/gph.h"

namespace campora {

/// A FeatureCollection (RFC 7946), in UTF-8: polygons when a layer has them, else points, with the
/// columns of their layers as properties: numbers as numbers with all their digits, texts where
/// layers differ about the type of a column, dates as ISO 8601 texts, empty cells and those of
/// layers without data as null; "id" counts from 0 in every layer when none has data. Outer rings
/// run against the clock; what crosses itself becomes a MultiPolygon, what has no area is left out.
/// At most nine decimals, a tenth of a millimetre. `path`: with its ending; an existing file is
/// replaced. A map without anything to write is a failure and leaves no file; `progress` may cancel
/// the export, which leaves none either.
[[nodiscard]] std::optional<Failure> exportGeoJson(std::span<const Gph* const> layers,
                                                   std::string_view path, const GisForm& form,
                                                   ExportProgress& progress);

}  // namespace campora
