// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace campora {

/// The endings of the files that the program reads and writes, in lower case.

// Work: the report of a console, a table of points, the track of a receiver.
inline constexpr std::string_view kReportEnding = ".rpt";
inline constexpr std::string_view kTextEnding = ".txt";
inline constexpr std::string_view kTrackEnding = ".nbr";
inline constexpr std::string_view kGlgEnding = ".glg";
// A shapefile: figures, their index, their table, reference system and code page.
inline constexpr std::string_view kShapeEnding = ".shp";
inline constexpr std::string_view kShapeIndexEnding = ".shx";
inline constexpr std::string_view kTableEnding = ".dbf";
inline constexpr std::string_view kReferenceEnding = ".prj";
inline constexpr std::string_view kCodePageEnding = ".cpg";
// Prescriptions, lots, projects.
inline constexpr std::string_view kPreEnding = ".pre";
inline constexpr std::string_view kVrtEnding = ".vrt";
inline constexpr std::string_view kLotEnding = ".lot";
inline constexpr std::string_view kProjectEnding = ".fsp";
// For other programs.
inline constexpr std::string_view kKmlEnding = ".kml";
inline constexpr std::string_view kGeoJsonEnding = ".geojson";
inline constexpr std::string_view kBmpEnding = ".bmp";
inline constexpr std::string_view kPngEnding = ".png";
inline constexpr std::string_view kPdfEnding = ".pdf";

}  // namespace campora
