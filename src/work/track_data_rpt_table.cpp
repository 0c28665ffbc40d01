// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A report's record as columns of a table. The column names are data, the same in every language.

#include <iterator>

#include "work/track_data_rpt.h"

namespace campora {

namespace {

struct Column {
    const char* name;
    ColumnType type;
};

/// Behind the real and the specified dose of every channel; the date is there only when it is
/// known.
constexpr Column kCommonColumns[] = {
    {"Velocidad", ColumnType::Real},  {"Alarmas", ColumnType::Real},
    {"AnchoLabor", ColumnType::Real}, {"Hora", ColumnType::Text},
    {"Fecha", ColumnType::Date},
};
constexpr int kCommonCount = static_cast<int>(std::size(kCommonColumns));

}  // namespace

int TrackDataRPT::getColumnCount() const {
    return 2 * channels_ + (hasDate_ ? kCommonCount : kCommonCount - 1);
}

std::string TrackDataRPT::getColumnNname(int column) const {
    if (column < 0 || column >= getColumnCount()) {
        return {};
    }
    const int doses = 2 * channels_;
    if (column < doses) {
        return (column % 2 == 0 ? "D_Real" : "D_Espec") + std::to_string(column / 2 + 1);
    }
    return kCommonColumns[column - doses].name;
}

ColumnType TrackDataRPT::getColumnNtype(int column) const {
    if (column < 0 || column >= getColumnCount()) {
        return ColumnType::Integer;
    }
    const int doses = 2 * channels_;
    return column < doses ? ColumnType::Real : kCommonColumns[column - doses].type;
}

CellValue TrackDataRPT::getCell(int column, const CellOptions& options) const {
    if (column < 0 || column >= getColumnCount()) {
        return {};
    }
    const int doses = 2 * channels_;
    if (column < doses) {
        const auto channel = static_cast<std::size_t>(column / 2);
        return std::int64_t{column % 2 == 0 ? real_[channel] : spec_[channel]};
    }
    switch (column - doses) {
    case 0:
        return speed_;
    case 1:
        return std::int64_t{alarms_};
    case 2:
        return options.swathInCentimetres ? swath_ * 100 : swath_;
    case 3:
        return hora();
    default:
        return fecha();
    }
}

}  // namespace campora
