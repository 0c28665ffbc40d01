// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/geojson_export.h"

#include <cmath>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/file_draft.h"
#include "base/json_text.h"
#include "base/numbers.h"
#include "export/export_layers.h"
#include "export/fine_grid.h"
#include "export/ring_repair.h"

namespace campora {

namespace {

void appendPosition(std::string& json, LonLat point) {
    const LonLat place = onFineGrid(point);
    json += '[' + numberText(place.x) + ',' + numberText(place.y) + ']';
}

/// Outer rings run against the clock here, holes with it: the other way round from shapefiles.
void appendRing(std::string& json, const ClosedRing& ring) {
    json += '[';
    for (auto point = ring.rbegin(); point != ring.rend(); ++point) {
        json += point == ring.rbegin() ? "" : ",";
        appendPosition(json, *point);
    }
    json += ']';
}

void appendRings(std::string& json, const ValidPolygon& polygon) {
    json += '[';
    appendRing(json, polygon.outer);
    for (const ClosedRing& hole : polygon.holes) {
        json += ',';
        appendRing(json, hole);
    }
    json += ']';
}

void appendPolygons(std::string& json, const std::vector<ValidPolygon>& polygons) {
    if (polygons.size() == 1) {
        json += R"({"type":"Polygon","coordinates":)";
        appendRings(json, polygons.front());
        json += '}';
        return;
    }
    json += R"({"type":"MultiPolygon","coordinates":[)";
    for (std::size_t i = 0; i < polygons.size(); ++i) {
        json += i == 0 ? "" : ",";
        appendRings(json, polygons[i]);
    }
    json += "]}";
}

std::string cellText(const CellValue& cell) {
    const auto text = [](const auto& value) -> std::string {
        using Cell = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Cell, std::string>) {
            return value.empty() ? "null" : jsonText(value);
        } else if constexpr (std::is_same_v<Cell, Date>) {
            return jsonText(dateText(value, "yyyy-mm-dd"));
        } else if constexpr (std::is_floating_point_v<Cell>) {
            return std::isfinite(value) ? numberText(value) : "null";
        } else if constexpr (std::is_integral_v<Cell>) {
            return numberText(value);
        } else {
            return "null";
        }
    };
    return std::visit(text, cell);
}

/// A value as the type of its column asks for it, whatever the layer gives: numbers with all their
/// digits in any column of numbers.
std::string propertyText(ColumnType type, const CellValue& cell) {
    const bool isNumber = type == ColumnType::Integer || type == ColumnType::Real;
    if (isNumber &&
        (std::holds_alternative<std::string>(cell) || std::holds_alternative<Date>(cell))) {
        const std::optional<double> number = cellNumber(cell);
        return number ? cellText(*number) : "null";
    }
    const bool isText =
        type == ColumnType::Text && cellNumber(cell) && !std::holds_alternative<std::string>(cell);
    return isText ? jsonText(cellText(cell)) : cellText(cell);
}

/// One export: layers into a file.
class GeoJsonExport {
public:
    GeoJsonExport(std::vector<ExportLayer> layers, std::string_view path, const Texts* texts,
                  ExportProgress& progress)
        : layers_(std::move(layers)),
          columns_(ExportColumns::ofAll(layers_, texts)),
          file_(path),
          progress_(progress) {
        for (const ExportColumn& column : columns_.columns()) {
            names_.push_back(jsonText(column.name) + ':');
        }
    }

    std::optional<Failure> run(const MapStyle& style) {
        progress_.expect(figureCount(layers_));
        file_.write("{\"type\":\"FeatureCollection\",\"features\":[");
        for (std::size_t layer = 0; layer < layers_.size() && !isOver(); ++layer) {
            if (layers_[layer].polygons != nullptr) {
                writePolygons(layer, style);
            } else {
                writePoints(layer);
            }
        }
        if (progress_.cancelled()) {
            return std::nullopt;
        }
        if (features_ == 0 && !file_.failure()) {
            return Failure{TextId::NothingToExportGis, {}, {}};
        }
        file_.write("\n]}\n");
        return file_.finish();
    }

private:
    /// Whether it is of no use to go on.
    [[nodiscard]] bool isOver() const { return progress_.cancelled() || file_.failure(); }
    /// Whether the next figure is to be written.
    [[nodiscard]] bool goesOn() { return progress_.next() && !isOver(); }

    void writePolygons(std::size_t layer, const MapStyle& style) {
        const ExportablePolygon& polygons = *layers_[layer].polygons;
        for (std::int32_t polygon = 0; polygon < layers_[layer].count && goesOn(); ++polygon) {
            collectRing(polygons, polygon, style, ring_);
            collectValidPolygons(ring_, Corners::OnFineGrid, valid_);
            if (!valid_.empty()) {
                beginFeature();
                appendPolygons(json_, valid_);
                endFeature(layer, polygon);
            }
        }
    }

    void writePoints(std::size_t layer) {
        const ExportablePoint& points = *layers_[layer].points;
        for (std::int32_t point = 0; point < layers_[layer].count && goesOn(); ++point) {
            beginFeature();
            json_ += R"({"type":"Point","coordinates":)";
            appendPosition(json_, points.ExportablePoint_pointN(point));
            json_ += '}';
            endFeature(layer, point);
        }
    }

    void beginFeature() {
        json_ = features_ == 0 ? "\n" : ",\n";
        json_ += R"({"type":"Feature","geometry":)";
        ++features_;
    }

    void endFeature(std::size_t layer, std::int32_t row) {
        json_ += R"(,"properties":{)";
        if (columns_.empty()) {
            json_ += "\"id\":" + numberText(row);
        }
        for (std::size_t i = 0; i < names_.size(); ++i) {
            json_ += i == 0 ? "" : ",";
            json_ += names_[i];
            json_ += propertyText(columns_.columns()[i].type, columns_.cell(layer, row, i));
        }
        json_ += "}}";
        file_.write(json_);
    }

    std::vector<ExportLayer> layers_;
    ExportColumns columns_;
    std::vector<std::string> names_;  // with quotes and colon
    FileDraft file_;
    ExportProgress& progress_;
    std::string json_;  // of the feature at hand
    std::int64_t features_ = 0;
    std::vector<LonLat> ring_;
    std::vector<ValidPolygon> valid_;
};

}  // namespace

std::optional<Failure> exportGeoJson(std::span<const Gph* const> layers, std::string_view path,
                                     const GisForm& form, ExportProgress& progress) {
    return GeoJsonExport(figureLayers(layers), path, form.texts, progress).run(form.style);
}

}  // namespace campora
