// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/grid_layer.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "base/numbers.h"
#include "base/paths.h"
#include "model/geodesy.h"
#include "model/measures.h"
#include "presc/channel_summary.h"

namespace campora {

namespace {

constexpr int kCorners = 4;

}  // namespace

GridLayer::GridLayer(std::string_view path, GridCells cells, Color background)
    : name_(fileNamePart(path)), path_(path), cells_(std::move(cells)), background_(background) {
    collectBound();
    countDoses();
}

void GridLayer::collectBound() {
    // Only the ends of a row can widen the box: what lies between them is nearer.
    for (const double y : cells_.rowY) {
        bound_.addPoint(cells_.columnX.front(), y);
        bound_.addPoint(cells_.columnX.back(), y);
    }
}

void GridLayer::countDoses() {
    for (int channel = 0; channel < cells_.channels; ++channel) {
        Channel& counted = channels_.emplace_back();
        for (std::int32_t cell = 0; cell < cellCount(); ++cell) {
            const std::int16_t dose = steps(cell, channel);
            counted.dosed += dose != 0 ? 1 : 0;
            counted.steps += dose;
        }
        setUpScale(counted.scale, channel);
    }
}

void GridLayer::setUpScale(ColorScale& scale, int channel) const {
    SetList set;
    for (std::int32_t cell = 0; cell < cellCount(); ++cell) {
        set.addDosis(inUnits(stepsOf(cell, channel)));
    }
    scale.loadFromSetList(set, 0);
    const Clase& first = scale.getClass(0);
    if (first.lower == 0 && first.upper == 0) {
        scale.setClassColor(0, background_);
    }
}

std::int32_t GridLayer::stepsOf(std::int32_t cell, int channel) const {
    if (channel != kTotal) {
        return steps(cell, channel);
    }
    std::int32_t sum = 0;
    for (int each = 0; each < cells_.channels; ++each) {
        sum += steps(cell, each);
    }
    return sum;
}

void GridLayer::showTotal() {
    current_ = cells_.channels > 1 ? kTotal : 0;
    if (current_ == kTotal && !std::exchange(hasTotal_, true)) {
        setUpScale(total_, kTotal);
    }
}

void GridLayer::addChannelEntries(char symbol) {
    const double hectares = cells_.metres * cells_.metres / kSquareMetresPerHectare;
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        const double area =
            cells_.metres * cells_.metres * channels_[i].dosed / kSquareMetresPerHectare;
        summary_.addProperty(channelEntry("Superficie", i), summaryFigure(area, symbol), "Has");
    }
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        const double product =
            static_cast<double>(channels_[i].steps) / cells_.doseSteps * hectares;
        summary_.addProperty(channelEntry("Producto total", i), summaryFigure(product, symbol), "");
    }
}

const GridLayer::Channel& GridLayer::at(int channel) const {
    return channels_.at(static_cast<std::size_t>(channel));
}

void GridLayer::setCurrentChannel(int channel) {
    static_cast<void>(at(channel));
    current_ = channel;
}

ColorScale* GridLayer::File_escalaColores() {
    return current_ == kTotal ? &total_ : &channels_[static_cast<std::size_t>(current_)].scale;
}

void GridLayer::checkCell(std::int32_t cell) const {
    if (cell < 0 || cell >= cellCount()) {
        throw std::out_of_range("GridLayer.polygonNpoint: Numero de polygono fuera de rango");
    }
}

float GridLayer::dose(std::int32_t cell, int channel) const {
    checkCell(cell);
    static_cast<void>(at(channel));
    return static_cast<float>(inUnits(steps(cell, channel)));
}

LonLat GridLayer::corner(std::int32_t cell) const {
    const auto column = static_cast<std::size_t>(cell % columns());
    const auto row = static_cast<std::size_t>(cell / columns());
    return {cells_.columnX[column], cells_.rowY[row]};
}

double GridLayer::cellWidth() const {
    return cells_.metres / (cosineOfGridEdge(bound_.maxY) * METERS_PER_DEGREE);
}

double GridLayer::cellRise() const {
    const double height = cells_.metres / METERS_PER_DEGREE;
    return cells_.northward ? height : -height;
}

std::int32_t GridLayer::cellAt(LonLat position) const {
    const double width = cellWidth();
    const double rise = cellRise();
    const std::vector<double>& xs = cells_.columnX;
    const auto column = std::partition_point(xs.begin(), xs.end(),
                                             [&](double x) { return x + width < position.x; });
    const std::vector<double>& ys = cells_.rowY;
    const bool northward = cells_.northward;
    const auto row = std::partition_point(ys.begin(), ys.end(), [&](double y) {
        return northward ? y + rise < position.y : y + rise > position.y;
    });
    // The first cell that reaches as far as the position has it, unless it begins beyond it.
    if (column == xs.end() || row == ys.end() || !(*column <= position.x) ||
        !(northward ? *row <= position.y : *row >= position.y)) {
        return -1;
    }
    return static_cast<std::int32_t>(row - ys.begin()) * columns() +
           static_cast<std::int32_t>(column - xs.begin());
}

std::optional<float> GridLayer::doseAt(LonLat position, int channel) const {
    static_cast<void>(at(channel));
    const std::int32_t cell = cellAt(position);
    return cell < 0 ? std::nullopt
                    : std::optional(static_cast<float>(inUnits(steps(cell, channel))));
}

std::int32_t GridLayer::Gph_mouseOver(const ViewTransform& /*view*/, const MapStyle& /*style*/,
                                      LonLat position, std::int32_t /*start*/) const {
    return cellAt(position);
}

std::string GridLayer::Gph_getInfo(const InfoContext& context, std::int32_t n) const {
    checkCell(n);
    std::string number = numberText(static_cast<float>(inUnits(shownSteps(n))));
    std::replace(number.begin(), number.end(), '.', context.locale.decimalSymbol());
    return context.texts.format(TextId::GridCellDose, {number});
}

std::int32_t GridLayer::ExportablePolygon_polygonNCount(const MapStyle& /*style*/,
                                                        std::int32_t polygon) const {
    return polygon >= 0 && polygon < cellCount() ? kCorners : 0;
}

LonLat GridLayer::ExportablePolygon_polygonNpoint(std::int32_t polygon, std::int32_t point) const {
    if (point < 0 || point >= kCorners) {
        throw std::out_of_range("GridLayer.polygonNpoint: Punto del polygono fuera de rango");
    }
    checkCell(polygon);
    LonLat place = corner(polygon);
    if (point == 1 || point == 2) {
        place.x += cellWidth();
    }
    if (point >= 2) {
        place.y += cellRise();
    }
    return place;
}

std::string GridLayer::ExportableData_getColumnNname(int column) const {
    return column >= 0 && column < cells_.channels ? "Dosis" + numberText(column + 1) : "";
}

ColumnType GridLayer::ExportableData_getColumnNtype(int /*column*/) const {
    return ColumnType::Integer;
}

CellValue GridLayer::ExportableData_getCell(std::int32_t row, int column,
                                            const CellOptions& /*options*/) const {
    if (row < 0 || row >= cellCount() || column < 0 || column >= cells_.channels) {
        return {};
    }
    if (cells_.doseSteps == 1) {
        return std::int64_t{steps(row, column)};
    }
    return dose(row, column);
}

LonLat GridLayer::ExportablePoint_pointN(std::int32_t point) const {
    checkCell(point);
    return corner(point);
}

}  // namespace campora
