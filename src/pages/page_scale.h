// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "base/lon_lat.h"
#include "model/view_transform.h"
#include "pages/page_setup.h"

namespace campora {

/// What a map shows: its middle and its size in metres.
struct MapExtent {
    LonLat middle;
    double widthM = 0;
    double heightM = 0;
};

[[nodiscard]] MapExtent shownExtent(const ViewTransform& view);

/// n of the scale 1:n at which the extent just fits into the rectangle, rounded up to three digits;
/// at least 1.
[[nodiscard]] double scaleThatShows(const MapExtent& extent, const PageRect& map);
/// A whole number with its thousands set apart by blanks that do not break.
[[nodiscard]] std::string groupedNumber(double number);

/// Canvas units in a millimetre of paper. A line of one pixel is 0.13 mm wide: half as wide as on a
/// screen, which is looked at from farther away.
inline constexpr double kUnitsPerPageMm = 2 * 1440 / 25.4;
/// Figures from 0.8 millimetres of paper on are outlined in ink.
inline constexpr auto kLeastOutlinedOnPaper = static_cast<std::int32_t>(0.8 * kUnitsPerPageMm);

/// How the map is drawn on a canvas that is as large as the rectangle: the middle of the extent in
/// the middle, at 1:n along the parallel through it.
[[nodiscard]] ViewTransform pageTransform(const MapExtent& extent, const PageRect& map, double n);

/// The bar of a scale: 1, 2 or 5 times a power of ten metres.
struct ScaleBar {
    double metres = 0;
    double lengthMm = 0;
    /// Equal parts, alternately filled.
    int parts = 0;
};

/// The longest one up to `mostMm` at the scale 1:n.
[[nodiscard]] ScaleBar roundBar(double n, double mostMm);

/// "250 m", "2,5 km": in metres below a kilometre.
[[nodiscard]] std::string distanceText(double metres, char decimalSymbol);

}  // namespace campora
