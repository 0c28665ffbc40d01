// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "base/lon_lat.h"
#include "model/cell_value.h"
#include "model/map_style.h"

namespace campora {

class Texts;

/// The faces through which exporters read any layer; indices count from 0.

class ExportablePolygon {
public:
    virtual ~ExportablePolygon() = default;

    [[nodiscard]] virtual std::int32_t ExportablePolygon_polygonCount() const = 0;
    /// Points of a polygon; 0 for one that is left out under `style` and for a bad index.
    [[nodiscard]] virtual std::int32_t
    ExportablePolygon_polygonNCount(const MapStyle& style, std::int32_t polygon) const = 0;
    /// Throws `std::out_of_range` for indices that the layer does not have.
    [[nodiscard]] virtual LonLat ExportablePolygon_polygonNpoint(std::int32_t polygon,
                                                                 std::int32_t point) const = 0;
};

class ExportableData {
public:
    virtual ~ExportableData() = default;

    /// Rows.
    [[nodiscard]] virtual std::int32_t ExportableData_getDataCount() const = 0;
    [[nodiscard]] virtual int ExportableData_getColumnCount() const = 0;
    /// Other column numbers give an empty name, type 0 and an empty cell.
    [[nodiscard]] virtual std::string ExportableData_getColumnNname(int column) const = 0;
    [[nodiscard]] virtual ColumnType ExportableData_getColumnNtype(int column) const = 0;
    [[nodiscard]] virtual CellValue ExportableData_getCell(std::int32_t row, int column,
                                                           const CellOptions& options) const = 0;
};

/// A layer whose rows keep alarms.
class ExportableAlarms {
public:
    virtual ~ExportableAlarms() = default;

    [[nodiscard]] virtual bool ExportableAlarms_any() const = 0;
    /// The names of the alarms of a row, joined by "; "; empty without any.
    [[nodiscard]] virtual std::string ExportableAlarms_names(std::int32_t row,
                                                             const Texts& texts) const = 0;
};

class ExportablePoint {
public:
    virtual ~ExportablePoint() = default;

    [[nodiscard]] virtual std::int32_t ExportablePoint_pointCount() const = 0;
    /// Throws `std::out_of_range` for a bad index.
    [[nodiscard]] virtual LonLat ExportablePoint_pointN(std::int32_t point) const = 0;
};

}  // namespace campora
