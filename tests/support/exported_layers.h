// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "model/exportable.h"
#include "platform/quiet_dialogs.h"
#include "support/named_file.h"

namespace campora {

/// Layers made by hand, each with some of the faces that exporters ask for.

class RingLayer : public NamedLayer, public ExportablePolygon {
public:
    using Ring = std::vector<LonLat>;

    explicit RingLayer(std::vector<Ring> polygons) : NamedLayer(""), rings_(std::move(polygons)) {}

    [[nodiscard]] std::int32_t ExportablePolygon_polygonCount() const override {
        return static_cast<std::int32_t>(rings_.size());
    }
    [[nodiscard]] std::int32_t
    ExportablePolygon_polygonNCount(const MapStyle& /*style*/,
                                    std::int32_t polygon) const override {
        return static_cast<std::int32_t>(rings_.at(static_cast<std::size_t>(polygon)).size());
    }
    [[nodiscard]] LonLat ExportablePolygon_polygonNpoint(std::int32_t polygon,
                                                         std::int32_t point) const override {
        return rings_.at(static_cast<std::size_t>(polygon)).at(static_cast<std::size_t>(point));
    }

private:
    std::vector<Ring> rings_;
};

class PointLayer : public NamedLayer, public ExportablePoint {
public:
    explicit PointLayer(std::vector<LonLat> points) : NamedLayer(""), points_(std::move(points)) {}

    [[nodiscard]] std::int32_t ExportablePoint_pointCount() const override {
        return static_cast<std::int32_t>(points_.size());
    }
    [[nodiscard]] LonLat ExportablePoint_pointN(std::int32_t point) const override {
        return points_.at(static_cast<std::size_t>(point));
    }

private:
    std::vector<LonLat> points_;
};

/// Points with a row of cells each; the types of the columns are left to the cells.
class TableLayer final : public PointLayer, public ExportableData {
public:
    TableLayer(std::vector<LonLat> points, std::vector<std::string> columns,
               std::vector<std::vector<CellValue>> rows)
        : PointLayer(std::move(points)), columns_(std::move(columns)), rows_(std::move(rows)) {}

    [[nodiscard]] std::int32_t ExportableData_getDataCount() const override {
        return static_cast<std::int32_t>(rows_.size());
    }
    [[nodiscard]] int ExportableData_getColumnCount() const override {
        return static_cast<int>(columns_.size());
    }
    [[nodiscard]] std::string ExportableData_getColumnNname(int column) const override {
        return columns_.at(static_cast<std::size_t>(column));
    }
    [[nodiscard]] ColumnType ExportableData_getColumnNtype(int /*column*/) const override {
        return ColumnType::Text;
    }
    [[nodiscard]] CellValue ExportableData_getCell(std::int32_t row, int column,
                                                   const CellOptions& /*options*/) const override {
        return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
    }

private:
    std::vector<std::string> columns_;
    std::vector<std::vector<CellValue>> rows_;
};

/// The user has enough at the first word.
class CancellingProgress final : public Progress {
public:
    [[nodiscard]] bool report(int /*percent*/) override { return false; }
};

}  // namespace campora
