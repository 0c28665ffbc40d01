// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "colour/set_list.h"
#include "model/number_column.h"
#include "platform/user_locale.h"
#include "presc/gph_polygon_multi.h"
#include "presc/shape_reader.h"

namespace campora {

/// The shapefile behind a layer of zones: the figures of its records, and what the columns of its
/// table say of them. Records and columns count from 1. `figures`: those of all records.
class ZoneTable {
public:
    /// As `ShapeReader::open`; the columns are those of the new table.
    [[nodiscard]] std::optional<Failure> open(std::string_view path);
    [[nodiscard]] const ShapefileNotes& notes() const { return reader_.notes(); }

    [[nodiscard]] std::int32_t recordCount() const { return reader_.recordCount(); }
    /// Hands the figures out in order, and finds out which columns are numeric.
    void readFigures(const std::function<void(std::int32_t record, GphPolygonMulti figure)>& take);

    [[nodiscard]] const std::vector<std::string>& columnNames() const { return columnNames_; }
    [[nodiscard]] int columnCount() const { return static_cast<int>(columnNames_.size()); }
    /// The values of a column, 0 always among them; null unless every record that draws something
    /// has a number there.
    [[nodiscard]] const SetList* setOf(int column) const;
    /// From now on these are the values of the column.
    void replaceSet(int column, SetList set);

    /// How the records that draw something have the column filled. Throws `std::out_of_range` for a
    /// column that is not there.
    [[nodiscard]] ColumnSurvey survey(int column, std::span<const GphPolygonMulti> figures) const;
    /// The values of a column read in that form; none for a record without one or without a point.
    [[nodiscard]] std::vector<std::optional<double>>
    values(int column, ColumnForm form, std::span<const GphPolygonMulti> figures) const;
    /// The cell as the information box shows it.
    [[nodiscard]] std::string shownCell(std::int32_t record, int column,
                                        const UserLocale& locale) const;

private:
    /// The values of the current record, once for each of its parts.
    void collectValues(std::int32_t parts);

    /// Steps to records for information too, which changes nothing that shows.
    mutable ShapeReader reader_;
    std::vector<std::string> columnNames_;
    /// None for columns that are not numeric.
    std::vector<std::optional<SetList>> sets_;
};

}  // namespace campora
