// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/shp_export.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "base/encoding.h"
#include "base/file_endings.h"
#include "base/number_forms.h"
#include "base/numbers.h"
#include "export/export_layers.h"
#include "export/ring_repair.h"
#include "export/shapefile_writer.h"

namespace campora {

namespace {

constexpr std::size_t kNameLetters = 10;
constexpr int kRealDecimals = 3;

struct FieldForm {
    DbaseType type;
    int length;
    int decimals;
};

FieldForm formOf(ColumnType type) {
    switch (type) {
    case ColumnType::Integer:
        return {DbaseType::Numeric, 6, 0};
    case ColumnType::Real:
        return {DbaseType::Numeric, 15, kRealDecimals};
    case ColumnType::Text:
        return {DbaseType::Character, 10, 0};
    case ColumnType::Date:
        break;
    }
    return {DbaseType::Date, DbaseWriter::kDateLength, 0};
}

constexpr FieldForm kIdForm{DbaseType::Numeric, 5, 0};

/// The first letters of a UTF-8 name.
std::string shortName(std::string_view name) {
    return fromWindows1252(toWindows1252(name).substr(0, kNameLetters));
}

/// "0.000" in the digits that the cell has; blank without a number.
std::string realText(const CellValue& cell) {
    if (const auto* const single = std::get_if<float>(&cell)) {
        return fixedNumberText(*single, kRealDecimals);
    }
    if (const auto* const whole = std::get_if<std::int64_t>(&cell)) {
        return numberText(*whole) + ".000";
    }
    const std::optional<double> number = cellNumber(cell);
    return number ? fixedNumberText(*number, kRealDecimals) : std::string();
}

std::string integerText(const CellValue& cell) {
    const std::optional<std::int64_t> number = cellInteger(cell);
    return number ? numberText(*number) : std::string();
}

bool fits16Bits(const CellValue& cell) {
    const std::optional<double> number = cellNumber(cell);
    return !number || std::abs(roundHalfEven(*number) + 0.5) < 32768;
}

/// The columns of the layers, or their "id", as fields of the table. Some layers call columns of
/// fractions integers: those programs for which `forGis` stands get the fractions.
class AttributeTable {
public:
    AttributeTable(std::span<const ExportLayer> layers, ExportColumns cells, bool forGis)
        : layers_(layers),
          cells_(std::move(cells)),
          columns_(cells_.columns().begin(), cells_.columns().end()),
          forGis_(forGis) {}

    /// What a cell cannot hold, as a failure without a path.
    [[nodiscard]] const std::optional<Failure>& failure() const { return failure_; }

    void addFields(DbaseWriter& table) {
        if (columns_.empty()) {
            table.addField("id", kIdForm.type, widthOfIds(), kIdForm.decimals);
            return;
        }
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const int widest = forGis_ ? widthOfCells(i) : 0;  // may widen the type
            const FieldForm form = formOf(columns_[i].type);
            table.addField(shortName(columns_[i].name), form.type, std::max(widest, form.length),
                           form.decimals);
        }
    }

    void writeRecord(DbaseWriter& table, std::size_t layer, std::int32_t row) {
        if (columns_.empty()) {
            table.recordField(1, numberText(row));
        }
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            record(table, static_cast<int>(i) + 1, columns_[i], cells_.cell(layer, row, i));
        }
        table.writeRecord();
    }

private:
    void record(DbaseWriter& table, int field, const ExportColumn& column, const CellValue& cell) {
        switch (column.type) {
        case ColumnType::Integer:
            if (!forGis_ && !fits16Bits(cell)) {
                refuse(column, integerText(cell));
            }
            table.recordField(field, integerText(cell));
            break;
        case ColumnType::Real:
            table.recordField(field, realText(cell));
            break;
        case ColumnType::Text:
        case ColumnType::Date:
            table.recordField(field, cell);
            break;
        }
    }

    void refuse(const ExportColumn& column, std::string text) {
        if (!failure_) {
            failure_ = Failure{TextId::CellDoesNotFit, {column.name, std::move(text)}, {}};
        }
    }

    /// Bytes of the cell in the table.
    [[nodiscard]] static std::size_t width(const ExportColumn& column, const CellValue& cell) {
        if (column.type == ColumnType::Real) {
            return realText(cell).size();
        }
        if (column.type == ColumnType::Integer) {
            return integerText(cell).size();
        }
        return toWindows1252(DbaseWriter::cellText(cell)).size();
    }

    /// Wide enough for all cells of the column, which becomes one of reals at the first fraction;
    /// texts may be longer than any field.
    [[nodiscard]] int widthOfCells(std::size_t index) {
        ExportColumn& column = columns_[index];
        if (column.type == ColumnType::Date) {
            return 0;
        }
        std::size_t widest = 0;
        for (std::size_t layer = 0; layer < layers_.size(); ++layer) {
            for (std::int32_t row = 0; row < layers_[layer].count; ++row) {
                const CellValue cell = cells_.cell(layer, row, index);
                if (column.type == ColumnType::Integer && hasDecimals(cell)) {
                    column.type = ColumnType::Real;
                    return widthOfCells(index);
                }
                widest = std::max(widest, width(column, cell));
                if (widest > DbaseWriter::kMostLength && column.type != ColumnType::Text) {
                    refuse(column, realText(cell));
                }
            }
        }
        return static_cast<int>(std::min<std::size_t>(widest, DbaseWriter::kMostLength));
    }

    [[nodiscard]] int widthOfIds() const {
        std::int32_t most = 1;
        for (const ExportLayer& layer : layers_) {
            most = std::max(most, layer.count);
        }
        const int widest = static_cast<int>(numberText(most - 1).size());
        return forGis_ ? std::max(widest, kIdForm.length) : kIdForm.length;
    }

    std::span<const ExportLayer> layers_;
    ExportColumns cells_;
    std::vector<ExportColumn> columns_;
    bool forGis_;
    std::optional<Failure> failure_;
};

/// One export: layers into a set.
class ShapefileExport {
public:
    ShapefileExport(std::vector<ExportLayer> layers, std::string_view basePath, ShapeType type,
                    ExportProgress& progress)
        : basePath_(basePath),
          layers_(std::move(layers)),
          set_(basePath, type),
          attributes_(layers_, ExportColumns::ofFirst(layers_), false),
          progress_(progress) {}
    /// In the form for other programs; `texts` may be null.
    ShapefileExport(std::vector<ExportLayer> layers, std::string_view basePath, const Texts* texts,
                    const Date& today, ExportProgress& progress)
        : basePath_(basePath),
          layers_(std::move(layers)),
          forGis_(true),
          set_(basePath,
               layers_.front().polygons != nullptr ? ShapeType::Polygon : ShapeType::Point, today),
          attributes_(layers_, ExportColumns::ofAll(layers_, texts), true),
          progress_(progress) {}

    /// `nothing`: what is told when there is not one figure to write.
    std::optional<Failure> run(const MapStyle& style, TextId nothing) {
        attributes_.addFields(set_.table());
        progress_.expect(figureCount(layers_));
        if (auto failure = set_.create(boxOf(layers_))) {
            return failure;
        }
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
        if (attributes_.failure()) {
            return because(TextId::FileCannotBeWritten,
                           {std::string(basePath_).append(kTableEnding)}, *attributes_.failure());
        }
        if (set_.recordCount() == 0 && !set_.hasFailed()) {
            return Failure{nothing, {}, {}};
        }
        if (forGis_) {
            set_.useCoveredBox();
        }
        return set_.finish();
    }

private:
    /// Whether it is of no use to go on.
    [[nodiscard]] bool isOver() const {
        return progress_.cancelled() || attributes_.failure() || set_.hasFailed();
    }
    /// Whether the next figure is to be written.
    [[nodiscard]] bool goesOn() { return progress_.next() && !isOver(); }

    void writePolygons(std::size_t layer, const MapStyle& style) {
        const ExportablePolygon& polygons = *layers_[layer].polygons;
        for (std::int32_t polygon = 0; polygon < layers_[layer].count && goesOn(); ++polygon) {
            collectRing(polygons, polygon, style, ring_);
            if (!ring_.empty() && (forGis_ ? writeValid() : writeAsGiven())) {
                attributes_.writeRecord(set_.table(), layer, polygon);
            }
        }
    }

    bool writeAsGiven() {
        const std::array parts = {std::span<const LonLat>(ring_)};
        set_.addPolygon(parts);
        return true;
    }

    /// False when nothing of it remains.
    bool writeValid() {
        collectValidPolygons(ring_, Corners::Anywhere, valid_);
        parts_.clear();
        for (const ValidPolygon& polygon : valid_) {
            parts_.emplace_back(polygon.outer);
            parts_.insert(parts_.end(), polygon.holes.begin(), polygon.holes.end());
        }
        if (!parts_.empty()) {
            set_.addPolygon(parts_);
        }
        return !parts_.empty();
    }

    void writePoints(std::size_t layer) {
        const ExportablePoint& points = *layers_[layer].points;
        for (std::int32_t point = 0; point < layers_[layer].count && goesOn(); ++point) {
            set_.addPoint(points.ExportablePoint_pointN(point));
            attributes_.writeRecord(set_.table(), layer, point);
        }
    }

    std::string basePath_;
    std::vector<ExportLayer> layers_;
    bool forGis_ = false;
    ShapefileWriter set_;
    AttributeTable attributes_;
    ExportProgress& progress_;
    std::vector<LonLat> ring_;
    std::vector<ValidPolygon> valid_;
    std::vector<std::span<const LonLat>> parts_;
};

}  // namespace

std::optional<Failure> exportShpPolygons(std::span<const Gph* const> layers,
                                         std::string_view basePath, const MapStyle& style,
                                         ExportProgress& progress) {
    std::vector<ExportLayer> found = polygonLayers(layers);
    if (figureCount(found) == 0) {
        return Failure{TextId::NoPolygonsToExport, {}, {}};
    }
    return ShapefileExport(std::move(found), basePath, ShapeType::Polygon, progress)
        .run(style, TextId::NoPolygonsToExport);
}

std::optional<Failure> exportShpPoints(std::span<const Gph* const> layers,
                                       std::string_view basePath, ExportProgress& progress) {
    std::vector<ExportLayer> found = pointLayers(layers);
    if (figureCount(found) == 0) {
        return Failure{TextId::NoPointsToExport, {}, {}};
    }
    return ShapefileExport(std::move(found), basePath, ShapeType::Point, progress)
        .run(MapStyle(), TextId::NoPointsToExport);
}

std::optional<Failure> exportShpGis(std::span<const Gph* const> layers, std::string_view basePath,
                                    const GisForm& form, const Date& today,
                                    ExportProgress& progress) {
    std::vector<ExportLayer> found = figureLayers(layers);
    if (figureCount(found) == 0) {
        return Failure{TextId::NothingToExportGis, {}, {}};
    }
    return ShapefileExport(std::move(found), basePath, form.texts, today, progress)
        .run(form.style, TextId::NothingToExportGis);
}

}  // namespace campora
