// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"
#include "base/failure.h"
#include "base/file_draft.h"
#include "base/lon_lat.h"
#include "export/dbase_writer.h"
#include "model/bounding_box.h"
#include "model/shapefile_layout.h"

namespace campora {

/// The files of a set: those that are written, and the indexes of others that go with the old ones.
[[nodiscard]] std::vector<std::string> filesOfShapefile(std::string_view basePath);

/// Writes a main file, its index, its table and the notes on reference system and code page beside
/// them ("ESRI Shapefile Technical Description", 1998). Figures and records of the table are
/// written in step by the caller.
class ShapefileWriter {
public:
    /// `basePath`: without ending. `today`: as for `DbaseWriter`.
    ShapefileWriter(std::string_view basePath, ShapeType type,
                    std::optional<Date> today = std::nullopt);

    /// Its fields are added before `create`, its records after it.
    [[nodiscard]] DbaseWriter& table() { return table_; }
    /// `box`: of the header.
    [[nodiscard]] std::optional<Failure> create(const BoundingBox& box);
    /// `parts`: one span of points, in degrees, for every ring.
    void addPolygon(std::span<const std::span<const LonLat>> parts);
    void addPoint(LonLat point);
    [[nodiscard]] std::int32_t recordCount() const { return records_; }
    /// Whether it is of no use to go on.
    [[nodiscard]] bool hasFailed() const;

    /// From now on the header's box is what the figures cover.
    void useCoveredBox() { usesCoveredBox_ = true; }
    /// All files of the set take their places, or none.
    [[nodiscard]] std::optional<Failure> finish();

private:
    struct Box {
        double minX = std::numeric_limits<double>::infinity();
        double minY = std::numeric_limits<double>::infinity();
        double maxX = -std::numeric_limits<double>::infinity();
        double maxY = -std::numeric_limits<double>::infinity();

        void add(LonLat point);
        void append(std::string& bytes) const;
    };

    void writeRecord();
    void writeLength(FileDraft& file);

    std::string basePath_;
    ShapeType type_;
    DbaseWriter table_;
    FileDraft main_;
    FileDraft index_;
    std::int32_t records_ = 0;
    std::string content_;  // of the record at hand
    std::string heading_;
    Box covered_;
    bool usesCoveredBox_ = false;
    bool isTooLarge_ = false;
};

}  // namespace campora
