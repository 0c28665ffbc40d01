// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "base/texts.h"
#include "model/exportable.h"
#include "model/gph.h"

namespace campora {

/// A layer that takes part in an export, by the faces that it shows there.
struct ExportLayer {
    const Gph* gph = nullptr;
    /// One of the two, by what is exported.
    const ExportablePolygon* polygons = nullptr;
    const ExportablePoint* points = nullptr;
    /// Null when it has no columns.
    const ExportableData* data = nullptr;
    /// Null when it has no alarms.
    const ExportableAlarms* alarms = nullptr;
    /// Figures, those included that are left out under a style.
    std::int32_t count = 0;
};

/// The layers that have polygons, or points, in their order.
[[nodiscard]] std::vector<ExportLayer> polygonLayers(std::span<const Gph* const> layers);
[[nodiscard]] std::vector<ExportLayer> pointLayers(std::span<const Gph* const> layers);
/// Those with polygons when there are any figures among them, else those with points.
[[nodiscard]] std::vector<ExportLayer> figureLayers(std::span<const Gph* const> layers);

/// The points of a polygon, as the layer gives them, in place of what `ring` holds.
void collectRing(const ExportablePolygon& polygons, std::int32_t polygon, const MapStyle& style,
                 std::vector<LonLat>& ring);

/// The box that holds the boxes of all.
[[nodiscard]] BoundingBox boxOf(std::span<const ExportLayer> layers);

/// Figures of all of them.
[[nodiscard]] std::int64_t figureCount(std::span<const ExportLayer> layers);

/// Whether every layer with figures has columns; no table has any otherwise.
[[nodiscard]] bool allHaveColumns(std::span<const ExportLayer> layers);

struct ExportColumn {
    std::string name;
    ColumnType type = ColumnType::Integer;
};

/// The columns of a table of several layers. Layers and columns count from 0.
class ExportColumns {
public:
    /// Those of the first layer with figures; none unless `allHaveColumns`.
    [[nodiscard]] static ExportColumns ofFirst(std::span<const ExportLayer> layers);
    /// Those of all that have some, each name once, with a type that holds the cells of every
    /// layer: real where integers and reals meet, text where other types do. With `texts`, which
    /// outlive the columns, one more holds the names of the alarms where a layer has any.
    [[nodiscard]] static ExportColumns ofAll(std::span<const ExportLayer> layers,
                                             const Texts* texts = nullptr);

    [[nodiscard]] bool empty() const { return columns_.empty(); }
    [[nodiscard]] std::span<const ExportColumn> columns() const { return columns_; }
    /// Empty in a layer that has no column of that name.
    [[nodiscard]] CellValue cell(std::size_t layer, std::int32_t row, std::size_t column,
                                 const CellOptions& options = {}) const;
    /// Whether a layer with columns lacks one of these.
    [[nodiscard]] bool differ() const;

private:
    static constexpr int kNone = -1;

    struct Source {
        const ExportableData* data = nullptr;
        const ExportableAlarms* alarms = nullptr;
        std::vector<int> columns;  // the layer's for each of ours; none without data
    };

    static ExportColumns collect(std::span<const ExportLayer> layers, bool all);
    void addAlarms(std::span<const ExportLayer> layers, const Texts& texts);

    std::vector<ExportColumn> columns_;
    std::vector<Source> sources_;
    /// Set when the last column is that of the alarms.
    const Texts* alarmTexts_ = nullptr;
};

/// A number cell, or one that a text begins with; none otherwise.
[[nodiscard]] std::optional<double> cellNumber(const CellValue& cell);
/// Whether the cell is a number, or begins with one, that is not whole.
[[nodiscard]] bool hasDecimals(const CellValue& cell);
/// A cell of an integer column: its number rounded, halves to even. None without a number and for
/// one that 64 bits do not hold.
[[nodiscard]] std::optional<std::int64_t> cellInteger(const CellValue& cell);

}  // namespace campora
