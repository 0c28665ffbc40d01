// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

#include "base/failure.h"
#include "model/file.h"

namespace campora {

inline constexpr int kShortestPolygon = 1;
inline constexpr int kLongestPolygon = 100;
inline constexpr int kUsualPolygon = 10;

struct TrackExportOptions {
    /// Most points whose steps make up a polygon, `kShortestPolygon` to `kLongestPolygon`. Its ring
    /// has one point more on each side: where the last step ends.
    int polygonLength = kUsualPolygon;
    /// Leaves out points without flow, which also end a polygon.
    bool onlySprayed = false;
};

/// The swaths of a work's passes as one polygon shapefile with averaged speed, flow and litres per
/// hectare. `basePath`: without ending. Existing files are replaced, all of the set or none. A work
/// without a polygon is a failure and leaves no file.
[[nodiscard]] std::optional<Failure> exportTrack(const File& work, std::string_view basePath,
                                                 const TrackExportOptions& options);

/// The path of the shapefile beside a track file, without its ending: the last four characters of
/// the path go when they are one ("x.nbr"), that is, begin with a point.
[[nodiscard]] std::string shapeBaseOf(std::string_view trackPath);

}  // namespace campora
