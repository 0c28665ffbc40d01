// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/track_shapefile_writer.h"

#include <array>
#include <cstddef>
#include <utility>

#include "base/file_endings.h"
#include "base/number_forms.h"
#include "base/numbers.h"
#include "model/measures.h"

namespace campora {

namespace {

struct Column {
    std::string_view name;
    int length;
    int decimals;
};

// Fields in their order; numbers count from 1.
constexpr int kSpeed = 1;
constexpr int kFlow = 2;
constexpr int kLitres = 3;
constexpr std::array kColumns = {Column{"Velocidad", 4, 0}, Column{"Caudal", 4, 0},
                                 Column{"LitroHect", 6, 2}};

}  // namespace

TrackShapefileWriter::TrackShapefileWriter(std::string_view basePath, const BoundingBox& extent)
    : basePath_(basePath), set_(basePath, ShapeType::Polygon) {
    for (const Column& column : kColumns) {
        set_.table().addField(column.name, DbaseType::Numeric, column.length, column.decimals);
    }
    failure_ = set_.create(extent);
}

std::int32_t TrackShapefileWriter::average(std::string_view column, double sum,
                                           std::int32_t points) {
    const std::int32_t rounded = roundToInt32(sum / points);
    const auto narrow = static_cast<std::int16_t>(rounded);
    if (narrow != rounded) {
        refuse(column, numberText(sum / points));
    }
    return rounded;
}

void TrackShapefileWriter::refuse(std::string_view column, std::string value) {
    if (!failure_) {
        failure_ =
            because(TextId::FileCannotBeWritten, {std::string(basePath_).append(kTableEnding)},
                    {TextId::CellDoesNotFit, {std::string(column), std::move(value)}});
    }
}

void TrackShapefileWriter::add(const SwathFigure& figure) {
    if (hasFailed()) {
        return;
    }
    const std::int32_t speed = average(kColumns[kSpeed - 1].name, figure.sumSpeed, figure.points);
    const std::int32_t flow = average(kColumns[kFlow - 1].name, figure.sumFlow, figure.points);
    DbaseWriter& table = set_.table();
    table.recordField(kSpeed, std::int64_t{speed});
    table.recordField(kFlow, std::int64_t{flow});
    if (speed > 0.5) {
        const double width = roundHalfEven(figure.swathMetres);
        const double litres =
            flow * kSquareMetresPerHectare / (kMetresPerMinutePerKmh * speed * width);
        const std::string text = width > 0 ? fixedNumberText(litres, 2) : std::string();
        table.recordField(kLitres, text);
    }
    const std::array parts = {figure.ring};
    set_.addPolygon(parts);
    table.writeRecord();
}

std::optional<Failure> TrackShapefileWriter::finish() {
    return failure_ ? failure_ : set_.finish();
}

}  // namespace campora
