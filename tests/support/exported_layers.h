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

/// The user has enough at the first word.
class CancellingProgress final : public Progress {
public:
    [[nodiscard]] bool report(int /*percent*/) override { return false; }
};

}  // namespace campora
