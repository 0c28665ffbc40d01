// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "base/occurrences.h"
#include "work/report_record.h"

namespace campora {

/// A report as a table: a title line, a line of column headings, then a record a line, its fields
/// separated by tabs.
struct RptTextTable {
    /// Number of columns that the headings announce.
    std::size_t columns = 0;
    /// The lines of the records.
    std::string_view records;
};

/// The two forms that exist.
enum class TableForm {
    FourColumns,   ///< longitude, latitude, real dose, speed
    EightColumns,  ///< the same with specified dose, code, swath in centimetres, time of day
};

/// Splits off title and headings; a text without them has no columns and no records.
[[nodiscard]] RptTextTable splitTable(std::string_view text);

/// What the lines of a table hold. Lines are numbered from the first of the file.
struct TableRecords {
    std::vector<ReportRecord> records;
    /// Records with coordinates beyond 90 or 180 degrees, which are left out.
    Occurrences offGlobe;
    /// The line that ended the reading, 0 when all were read.
    std::size_t unreadFrom = 0;
};

/// The records, up to a line with too few fields or without coordinates. Blank lines count for
/// nothing, and other fields than the coordinates that are no numbers give 0.
/// `decimalSymbol`: of the lines whose longitude has no "."; `swathMetres`: where the form has
/// none.
[[nodiscard]] TableRecords decodeRecords(std::string_view records, TableForm form,
                                         char decimalSymbol, float swathMetres);

}  // namespace campora
