// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "model/cell_value.h"
#include "model/coordinate_system.h"
#include "presc/dbase_view.h"
#include "presc/shapefile_view.h"

namespace campora {

/// What there is to say about a shapefile beside its records.
struct ShapefileNotes {
    /// Why the records end before the map does, in words that follow others; none when it is whole.
    std::optional<Failure> damage;
    /// Why the table beside the map was left out (it is damaged, not a table...), in a sentence
    /// that stands alone; none when it was read or there is none.
    std::optional<Failure> tableWarning;
    /// Whether there is no table beside the map at all.
    bool isTableMissing = false;
    /// What the file beside the map says about its coordinates.
    CoordinateSystem system;
};

/// A shapefile and its table, read whole and stepped through record by record. Records, columns and
/// parts count from 1, vertices of a record from 0; a bad number throws `std::out_of_range`.
class ShapeReader {
public:
    /// Without records until something is opened.
    ShapeReader();

    /// Reads the set that `path` names (".shp"), companions in letters of either case: the index
    /// when it is there and sound, the table when it is there. Positions on record 1. On failure,
    /// which names the file and the place in it, the reader stays as it was.
    [[nodiscard]] std::optional<Failure> open(std::string_view path);

    [[nodiscard]] const ShapefileNotes& notes() const { return files_->notes; }

    [[nodiscard]] std::int32_t recordCount() const { return files_->shapes.recordCount(); }
    void moveFirst() { place(1); }
    /// Past the last record there are no parts and no values.
    void moveNext();
    void moveTo(std::int32_t record);
    /// The record's number, from 1 to one more than `recordCount`.
    [[nodiscard]] std::int32_t record() const { return record_; }

    /// 0 without a table.
    [[nodiscard]] int fieldCount() const { return files_->table.fieldCount(); }
    /// UTF-8.
    [[nodiscard]] const std::string& fieldName(int column) const;
    /// The current record's value: a number (64-bit float), a text without blanks around it, or a
    /// date. Empty where the cell is blank, "****" or no value of its column's type.
    [[nodiscard]] CellValue fieldValue(int column) const;
    /// The value as a number: a number, or a text that is one as a whole. Nothing is allocated.
    [[nodiscard]] std::optional<double> fieldNumber(int column) const;

    /// The value as a number without going to the record, whose parts are costly.
    [[nodiscard]] std::optional<double> fieldNumber(std::int32_t record, int column) const;
    /// What stands in the cell, value of its column or not, without blanks around it.
    [[nodiscard]] std::string fieldText(std::int32_t record, int column) const;
    /// Whether the column holds texts, which may be numbers.
    [[nodiscard]] bool isTextField(int column) const;

    /// What the current record draws; `ShapeType::Null` when nothing.
    [[nodiscard]] ShapeType figureType() const { return shape_.type(); }
    /// Parts with at least one vertex; a point or a set of points is one part.
    [[nodiscard]] std::int32_t partCount() const {
        return static_cast<std::int32_t>(parts_.size());
    }
    [[nodiscard]] std::int32_t partFirstVertex(std::int32_t part) const;
    [[nodiscard]] std::int32_t partLastVertex(std::int32_t part) const;
    /// 1 for a hole, 0 for any other part.
    [[nodiscard]] int partRingCode(std::int32_t part) const { return partIsHole(part) ? 1 : 0; }
    /// See `holesAmong`; false for what is no polygon.
    [[nodiscard]] bool partIsHole(std::int32_t part) const;
    /// Degrees.
    [[nodiscard]] double vertexX(std::int32_t vertex) const { return shape_.vertex(vertex).x; }
    [[nodiscard]] double vertexY(std::int32_t vertex) const { return shape_.vertex(vertex).y; }
    [[nodiscard]] LonLat vertex(std::int32_t vertex) const { return shape_.vertex(vertex); }

private:
    /// The decoders look into the bytes beside them, which therefore stay where they are.
    struct Files {
        FileBytes shapeBytes;
        FileBytes tableBytes;
        ShapefileView shapes;
        DbaseView table;
        ShapefileNotes notes;
    };

    static constexpr std::int32_t kNoRow = -1;

    static void readTable(std::string_view base, Files& files);
    void place(std::int32_t record);
    /// Of the current record, from 0; none past the last, whatever the table holds.
    [[nodiscard]] std::int32_t row() const {
        return record_ > recordCount() ? kNoRow : record_ - 1;
    }
    [[nodiscard]] const ShapePart& part(std::int32_t part) const;

    std::unique_ptr<const Files> files_;
    std::int32_t record_ = 1;
    ShapeView shape_;
    std::vector<ShapePart> parts_;
};

/// What a shapefile holds, by its header alone: points, lines or polygons; none for other types and
/// for a file that is no shapefile or cannot be read.
[[nodiscard]] std::optional<TextId> readShapeKind(std::string_view path);

}  // namespace campora
