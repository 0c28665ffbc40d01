// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/lon_lat.h"
#include "base/occurrences.h"

namespace campora {

/// The version that the first line of a logger's track file names: what follows the first "V".
struct TrackVersion {
    /// 0 when the file is no track file or its version is no number.
    float number = 0;
    /// As it stands in the line.
    std::string_view text;
};

/// The newest version that the program reads without doubt.
inline constexpr float kNewestTrackVersion = 2;

[[nodiscard]] TrackVersion trackVersion(std::string_view firstLine);

/// Lines 1 to 8 of a track file, without those that only place its points.
struct TrackHeader {
    std::string order;  ///< number of the work order
    std::string date;
    std::string startTime;
    std::string serial;  ///< of the logger
    float swath = 0;     ///< metres
};

struct TrackPoint {
    LonLat position;
    float flow = 0;   ///< litres per minute
    float speed = 0;  ///< km/h, 0 in files that have none
};

/// What a logger recorded in one track file.
struct TrackLog {
    TrackHeader header;
    /// Lines of the whole file.
    std::size_t lines = 0;
    std::vector<TrackPoint> points;
    /// What was skipped, by the numbers of the lines.
    Occurrences shortLines;
    Occurrences offGlobe;
    /// Index of each pass's first point, ascending; the first is 0 when there are points.
    std::vector<std::size_t> passStarts;
};

/// A header of nine lines, then a point a line: longitude and latitude in millionths of a degree
/// west and south of the reference in the header, flow and, from version 1.3 on, speed, all
/// hexadecimal in fixed columns. A blank line and a leap of more than 500 metres end a pass. Lines
/// that are too short, and points beyond 90 or 180 degrees, are skipped and counted. A file that
/// ends within its header has no points. `text`: the whole file, whose first line names a version.
/// Throws `FormatError` (the line) when a reference coordinate or the swath width is no number.
[[nodiscard]] TrackLog decodeTrackLog(std::string_view text);

}  // namespace campora
