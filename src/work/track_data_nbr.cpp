// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/track_data_nbr.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/numbers.h"
#include "model/measures.h"
#include "model/shown_number.h"

namespace campora {

namespace {

struct Column {
    const char* name;
    ColumnType type;
};

constexpr Column kColumns[] = {
    {"Caudal", ColumnType::Real},
    {"Velocidad", ColumnType::Integer},
    {"AnchoLabor", ColumnType::Real},
    {"LitrosHectarea", ColumnType::Real},
};
constexpr int kColumnCount = static_cast<int>(std::size(kColumns));

constexpr bool isColumn(int column) {
    return column >= 0 && column < kColumnCount;
}

}  // namespace

TrackDataNBR::TrackDataNBR(float flow, float speed, float swath,
                           std::shared_ptr<const LoggerSource> source)
    : flow_(flow), speed_(speed), swath_(swath), source_(std::move(source)) {}

float TrackDataNBR::litrosH() const {
    // A speed that rounds to 0 counts as none.
    const double areaPerMinute = kMetresPerMinutePerKmh * roundHalfEven(speed_) * swath_;
    if (areaPerMinute == 0) {
        return 0;
    }
    // A swath of next to nothing gives more than a float holds.
    constexpr double kMost = std::numeric_limits<float>::max();
    return static_cast<float>(
        std::clamp(flow_ * kSquareMetresPerHectare / areaPerMinute, -kMost, kMost));
}

Color TrackDataNBR::color(const MapStyle& style) const {
    if (style.scaleShown()) {
        return style.scale->getColor(scaledValue(style));
    }
    return flow_ == 0 ? style.colors.noDraw : style.colors.draw;
}

WorkRecord TrackDataNBR::workRecord(LonLat position) const {
    WorkRecord record;
    record.position = position;
    record.swath = swath_;
    record.speed = speed_;
    record.worked = flow_ > 0;
    record.applied[0] = litrosH();
    return record;
}

double TrackDataNBR::scaledValue(const MapStyle& style) const {
    return style.by == GraduatedBy::Hectare ? litrosH() : flow_;
}

std::string TrackDataNBR::resumen(const InfoContext& context) const {
    std::string lines;
    const auto addLine = [&](TextId text, std::string value) {
        lines += context.texts.format(text, {std::move(value)}) + "\r\n";
    };
    addLine(TextId::TrackPointSpeed, shownNumber(speed_, context.locale));
    addLine(TextId::TrackPointFlow, shownNumber(flow_, context.locale));
    addLine(TextId::TrackPointSwath, shownNumber(swath_, context.locale));
    if (speed_ != 0) {
        addLine(TextId::TrackPointLitres, shownNumber(litrosH(), context.locale));
    }
    if (!source_->registration.empty()) {
        addLine(TextId::TrackPointAircraft, source_->registration);
    }
    return lines;
}

int TrackDataNBR::getColumnCount() const {
    return kColumnCount;
}

std::string TrackDataNBR::getColumnNname(int column) const {
    return isColumn(column) ? kColumns[column].name : "";
}

ColumnType TrackDataNBR::getColumnNtype(int column) const {
    return isColumn(column) ? kColumns[column].type : ColumnType::Integer;
}

CellValue TrackDataNBR::getCell(int column, const CellOptions& options) const {
    switch (column) {
    case 0:
        return flow_;
    case 1:
        return speed_;
    case 2:
        return options.trackSwathInCentimetres ? swath_ * 100 : swath_;
    case 3:
        return litrosH();
    default:
        return {};
    }
}

}  // namespace campora
