// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/export_layers.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <type_traits>

#include "base/numbers.h"

namespace campora {

namespace {

const ExportableData* dataOf(const Gph& layer) {
    const auto* const data = dynamic_cast<const ExportableData*>(&layer);
    return data != nullptr && data->ExportableData_getColumnCount() > 0 ? data : nullptr;
}

const ExportableAlarms* alarmsOf(const Gph& layer) {
    const auto* const alarms = dynamic_cast<const ExportableAlarms*>(&layer);
    return alarms != nullptr && alarms->ExportableAlarms_any() ? alarms : nullptr;
}

bool hasFigures(const ExportLayer& layer) {
    return layer.count > 0;
}

/// The layer's columns for `columns`, by name; `kNone` where it has none.
std::vector<int> matchNames(const ExportableData& data, std::span<const ExportColumn> columns,
                            int none) {
    std::vector<int> matches;
    for (const ExportColumn& column : columns) {
        int match = none;
        for (int i = 0; i < data.ExportableData_getColumnCount() && match == none; ++i) {
            match = data.ExportableData_getColumnNname(i) == column.name ? i : none;
        }
        matches.push_back(match);
    }
    return matches;
}

bool isNumber(ColumnType type) {
    return type == ColumnType::Integer || type == ColumnType::Real;
}

/// A type that holds what both hold.
ColumnType widened(ColumnType a, ColumnType b) {
    if (a == b) {
        return a;
    }
    return isNumber(a) && isNumber(b) ? ColumnType::Real : ColumnType::Text;
}

/// Adds the columns of new names, each behind the one before it in its layer where that is there
/// already; the types of the others come to hold the cells of this layer.
void addColumns(const ExportableData& data, std::vector<ExportColumn>& columns) {
    std::vector<std::string> seen;  // of columns of one name in a layer the first one counts
    std::size_t next = columns.size();
    for (int i = 0; i < data.ExportableData_getColumnCount(); ++i) {
        std::string name = data.ExportableData_getColumnNname(i);
        if (std::find(seen.begin(), seen.end(), name) != seen.end()) {
            continue;
        }
        const ColumnType type = data.ExportableData_getColumnNtype(i);
        auto same = std::find_if(columns.begin(), columns.end(),
                                 [&](const auto& column) { return column.name == name; });
        if (same == columns.end()) {
            same =
                columns.insert(columns.begin() + static_cast<std::ptrdiff_t>(next), {name, type});
        } else {
            same->type = widened(same->type, type);
        }
        next = static_cast<std::size_t>(same - columns.begin()) + 1;
        seen.push_back(std::move(name));
    }
}

}  // namespace

std::vector<ExportLayer> polygonLayers(std::span<const Gph* const> layers) {
    std::vector<ExportLayer> found;
    for (const Gph* const gph : layers) {
        if (const auto* const polygons = dynamic_cast<const ExportablePolygon*>(gph)) {
            found.push_back({gph, polygons, nullptr, dataOf(*gph), alarmsOf(*gph),
                             polygons->ExportablePolygon_polygonCount()});
        }
    }
    return found;
}

std::vector<ExportLayer> pointLayers(std::span<const Gph* const> layers) {
    std::vector<ExportLayer> found;
    for (const Gph* const gph : layers) {
        if (const auto* const points = dynamic_cast<const ExportablePoint*>(gph)) {
            found.push_back({gph, nullptr, points, dataOf(*gph), alarmsOf(*gph),
                             points->ExportablePoint_pointCount()});
        }
    }
    return found;
}

std::vector<ExportLayer> figureLayers(std::span<const Gph* const> layers) {
    std::vector<ExportLayer> polygons = polygonLayers(layers);
    const bool hasPolygons = std::any_of(polygons.begin(), polygons.end(), hasFigures);
    return hasPolygons ? polygons : pointLayers(layers);
}

void collectRing(const ExportablePolygon& polygons, std::int32_t polygon, const MapStyle& style,
                 std::vector<LonLat>& ring) {
    ring.clear();
    const std::int32_t points = polygons.ExportablePolygon_polygonNCount(style, polygon);
    for (std::int32_t point = 0; point < points; ++point) {
        ring.push_back(polygons.ExportablePolygon_polygonNpoint(polygon, point));
    }
}

BoundingBox boxOf(std::span<const ExportLayer> layers) {
    BoundingBox box;
    for (const ExportLayer& layer : layers) {
        if (layer.gph->Gph_bound().isSet) {
            box.addGph(*layer.gph);
        }
    }
    return box;
}

std::int64_t figureCount(std::span<const ExportLayer> layers) {
    return std::accumulate(
        layers.begin(), layers.end(), std::int64_t{0},
        [](std::int64_t sum, const ExportLayer& layer) { return sum + layer.count; });
}

bool allHaveColumns(std::span<const ExportLayer> layers) {
    return std::all_of(layers.begin(), layers.end(), [](const ExportLayer& layer) {
        return layer.data != nullptr || !hasFigures(layer);
    });
}

ExportColumns ExportColumns::ofFirst(std::span<const ExportLayer> layers) {
    return allHaveColumns(layers) ? collect(layers, false) : ExportColumns();
}

ExportColumns ExportColumns::ofAll(std::span<const ExportLayer> layers, const Texts* texts) {
    ExportColumns table = collect(layers, true);
    if (texts != nullptr) {
        table.addAlarms(layers, *texts);
    }
    return table;
}

void ExportColumns::addAlarms(std::span<const ExportLayer> layers, const Texts& texts) {
    for (std::size_t layer = 0; layer < layers.size(); ++layer) {
        if (hasFigures(layers[layer]) && layers[layer].alarms != nullptr) {
            sources_[layer].alarms = layers[layer].alarms;
            alarmTexts_ = &texts;
        }
    }
    if (alarmTexts_ != nullptr) {
        columns_.push_back({"alarms", ColumnType::Text});
    }
}

ExportColumns ExportColumns::collect(std::span<const ExportLayer> layers, bool all) {
    ExportColumns table;
    for (const ExportLayer& layer : layers) {
        if (hasFigures(layer) && layer.data != nullptr && (all || table.columns_.empty())) {
            addColumns(*layer.data, table.columns_);
        }
    }
    for (const ExportLayer& layer : layers) {
        Source source{layer.data, nullptr, {}};
        if (layer.data != nullptr) {
            source.columns = matchNames(*layer.data, table.columns_, kNone);
        }
        table.sources_.push_back(std::move(source));
    }
    return table;
}

CellValue ExportColumns::cell(std::size_t layer, std::int32_t row, std::size_t column,
                              const CellOptions& options) const {
    const Source& source = sources_[layer];
    if (alarmTexts_ != nullptr && column + 1 == columns_.size()) {
        return source.alarms == nullptr
                   ? CellValue()
                   : CellValue(source.alarms->ExportableAlarms_names(row, *alarmTexts_));
    }
    const int own = source.data == nullptr ? kNone : source.columns[column];
    return own == kNone ? CellValue() : source.data->ExportableData_getCell(row, own, options);
}

bool ExportColumns::differ() const {
    return std::any_of(sources_.begin(), sources_.end(), [](const Source& source) {
        return std::find(source.columns.begin(), source.columns.end(), kNone) !=
               source.columns.end();
    });
}

std::optional<double> cellNumber(const CellValue& cell) {
    const auto number = [](const auto& value) -> std::optional<double> {
        using Cell = std::decay_t<decltype(value)>;
        if constexpr (std::is_arithmetic_v<Cell>) {
            return static_cast<double>(value);
        } else if constexpr (std::is_same_v<Cell, std::string>) {
            return leadingNumber(value);
        } else {
            return std::nullopt;
        }
    };
    return std::visit(number, cell);
}

bool hasDecimals(const CellValue& cell) {
    const std::optional<double> number = cellNumber(cell);
    return number && std::isfinite(*number) && std::trunc(*number) != *number;
}

std::optional<std::int64_t> cellInteger(const CellValue& cell) {
    if (const auto* const whole = std::get_if<std::int64_t>(&cell)) {
        return *whole;
    }
    constexpr double kBeyond = 9223372036854775808.0;  // 2 to the 63
    const std::optional<double> number = cellNumber(cell);
    if (!number || !(std::abs(*number) < kBeyond)) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(roundHalfEven(*number));
}

}  // namespace campora
