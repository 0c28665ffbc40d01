// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/lon_lat.h"
#include "export/shapefile_writer.h"
#include "model/bounding_box.h"

namespace campora {

/// Consecutive points of a work that become one polygon.
struct SwathFigure {
    /// Outline of what they cover, degrees.
    std::span<const LonLat> ring;
    /// Over the points: km/h, litres per minute.
    double sumSpeed = 0;
    double sumFlow = 0;
    std::int32_t points = 0;
    float swathMetres = 0;
};

/// Writes a work as a polygon shapefile with the averaged speed ("Velocidad", km/h), flow
/// ("Caudal", litres per minute) and litres per hectare ("LitroHect") of every polygon.
class TrackShapefileWriter {
public:
    /// `basePath`: without ending. `extent`: of the work's points.
    TrackShapefileWriter(std::string_view basePath, const BoundingBox& extent);

    /// Averages are whole numbers, halves to even; litres per hectare follow from them and from the
    /// swath width in whole metres. A record without speed keeps the litres per hectare of the one
    /// before it, blank at first; one without width has none. Litres are cut to the six characters
    /// of their field; an average beyond 16 bits is a failure.
    void add(const SwathFigure& figure);
    [[nodiscard]] std::int32_t recordCount() const { return set_.recordCount(); }
    /// Whether it is of no use to go on.
    [[nodiscard]] bool hasFailed() const { return failure_ || set_.hasFailed(); }
    /// The files take their places, all or none.
    [[nodiscard]] std::optional<Failure> finish();

private:
    /// `sum` / `points`, rounded.
    [[nodiscard]] std::int32_t average(std::string_view column, double sum, std::int32_t points);
    /// The column cannot hold the value.
    void refuse(std::string_view column, std::string value);

    std::string basePath_;
    ShapefileWriter set_;
    std::optional<Failure> failure_;
};

}  // namespace campora
