// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "model/exportable.h"
#include "support/exported_layers.h"

namespace campora {

/// Polygons and their first corners as points, with typed columns; its box is a degree wider than
/// the polygons all round.
class AttributeLayer final : public RingLayer, public ExportablePoint, public ExportableData {
public:
    struct Column {
        std::string name;
        ColumnType type;
        std::vector<CellValue> cells;
    };

    AttributeLayer(std::vector<Ring> rings, std::vector<Column> columns)
        : RingLayer(rings), columns_(std::move(columns)) {
        for (const Ring& ring : rings) {
            corners_.push_back(ring.empty() ? LonLat() : ring.front());
            for (const LonLat& point : ring) {
                box_.addPoint(point.x - 1, point.y - 1);
                box_.addPoint(point.x + 1, point.y + 1);
            }
        }
    }

    [[nodiscard]] const BoundingBox& Gph_bound() const override { return box_; }
    [[nodiscard]] std::int32_t ExportablePoint_pointCount() const override {
        return static_cast<std::int32_t>(corners_.size());
    }
    [[nodiscard]] LonLat ExportablePoint_pointN(std::int32_t point) const override {
        return corners_.at(static_cast<std::size_t>(point));
    }
    [[nodiscard]] std::int32_t ExportableData_getDataCount() const override {
        return ExportablePoint_pointCount();
    }
    [[nodiscard]] int ExportableData_getColumnCount() const override {
        return static_cast<int>(columns_.size());
    }
    [[nodiscard]] std::string ExportableData_getColumnNname(int column) const override {
        return columns_.at(static_cast<std::size_t>(column)).name;
    }
    [[nodiscard]] ColumnType ExportableData_getColumnNtype(int column) const override {
        return columns_.at(static_cast<std::size_t>(column)).type;
    }
    [[nodiscard]] CellValue ExportableData_getCell(std::int32_t row, int column,
                                                   const CellOptions& /*options*/) const override {
        return columns_.at(static_cast<std::size_t>(column))
            .cells.at(static_cast<std::size_t>(row));
    }

private:
    std::vector<Column> columns_;
    std::vector<LonLat> corners_;
    BoundingBox box_;
};

/// A square with its lower left corner there, against the clock and open.
inline RingLayer::Ring squareAt(double x, double y, double side = 1) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

}  // namespace campora
