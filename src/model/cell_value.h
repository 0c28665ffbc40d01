// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/dates.h"

namespace campora {

/// Type of a column in tables and exports.
enum class ColumnType { Integer = 0, Real = 1, Text = 2, Date = 3 };

/// A cell of a table; `std::monostate` is the empty cell.
using CellValue = std::variant<std::monostate, std::int64_t, float, double, std::string, Date>;

/// Choices of the one who asks for cells.
struct CellOptions {
    /// Swath widths of reports in centimetres (as text tables hold them) instead of metres.
    bool swathInCentimetres = false;
    /// Those of track files too, for a table that holds both.
    bool trackSwathInCentimetres = false;
};

}  // namespace campora
