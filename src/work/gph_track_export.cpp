// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A track as exporters read it: a polygon a step, a row and a point a record.

#include <stdexcept>

#include "model/swath_geometry.h"
#include "work/gph_track.h"
#include "work/vex_alarmas.h"

namespace campora {

std::int32_t GphTrack::ExportablePolygon_polygonCount() const {
    return Gph_count();
}

std::int32_t GphTrack::ExportablePolygon_polygonNCount(const MapStyle& style,
                                                       std::int32_t polygon) const {
    if (!isStep(polygon)) {
        return 0;
    }
    return style.drawAll || pointInfo(polygon).caudal() > 0 ? 4 : 0;
}

LonLat GphTrack::ExportablePolygon_polygonNpoint(std::int32_t polygon, std::int32_t point) const {
    if (point < 0 || point >= 4) {
        throw std::out_of_range("GphTrack.polygonNpoint: Punto del polygono fuera de rango");
    }
    if (!isStep(polygon)) {
        throw std::out_of_range("GphTrack.polygonNpoint: Numero de polygono fuera de rango");
    }
    const bool atEnd = point == 1 || point == 2;
    const SwathCorners corners = swathCorners(
        points_, static_cast<std::size_t>(polygon) + (atEnd ? 1 : 0), pointInfo(polygon).trocha());
    return point < 2 ? corners.left : corners.right;
}

std::int32_t GphTrack::ExportableData_getDataCount() const {
    return ExportablePoint_pointCount();
}

int GphTrack::ExportableData_getColumnCount() const {
    return empty() ? 0 : pointInfo(0).getColumnCount();
}

std::string GphTrack::ExportableData_getColumnNname(int column) const {
    return empty() ? std::string() : pointInfo(0).getColumnNname(column);
}

ColumnType GphTrack::ExportableData_getColumnNtype(int column) const {
    return empty() ? ColumnType::Integer : pointInfo(0).getColumnNtype(column);
}

CellValue GphTrack::ExportableData_getCell(std::int32_t row, int column,
                                           const CellOptions& options) const {
    return pointInfo(row).getCell(column, options);
}

bool GphTrack::ExportableAlarms_any() const {
    return std::holds_alternative<RptRecords>(records_) && !empty();
}

std::string GphTrack::ExportableAlarms_names(std::int32_t row, const Texts& texts) const {
    const auto* const records = std::get_if<RptRecords>(&records_);
    if (records == nullptr) {
        return {};
    }
    const TrackDataRPT& record = records->at(static_cast<std::size_t>(row));
    return alarmNames(texts, record.workKind(), record.alarmas());
}

std::int32_t GphTrack::ExportablePoint_pointCount() const {
    return static_cast<std::int32_t>(points_.size());
}

LonLat GphTrack::ExportablePoint_pointN(std::int32_t point) const {
    return points_.at(static_cast<std::size_t>(point));
}

}  // namespace campora
