// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

#include "model/exportable.h"
#include "model/work_layer.h"
#include "work/track_data_nbr.h"
#include "work/track_data_rpt.h"

namespace campora {

/// One continuous pass of a machine: positions with a record each. A step is the piece from point i
/// to point i + 1 and takes its flow, swath width and colour from the record of point i.
/// All records of a track are of one kind.
class GphTrack final : public WorkLayer,
                       public ExportablePolygon,
                       public ExportableData,
                       public ExportablePoint,
                       public ExportableAlarms {
public:
    using RptRecords = std::vector<TrackDataRPT>;
    using NbrRecords = std::vector<TrackDataNBR>;

    /// Appends a point with its record. A point at exactly the last position only replaces the last
    /// record. A record of another kind than the first throws `std::invalid_argument`.
    void addPoint(double x, double y, const TrackDataRPT& record);
    void addPoint(double x, double y, const TrackDataNBR& record);
    /// Makes room for this many points in all.
    void reserve(std::size_t points);

    [[nodiscard]] bool empty() const { return points_.empty(); }
    [[nodiscard]] const std::vector<LonLat>& points() const { return points_; }
    /// The record of a point; throws `std::out_of_range` for a bad index.
    [[nodiscard]] const TrackData& pointInfo(std::int32_t index) const;
    /// The records as they are stored, for code that needs their own kind.
    [[nodiscard]] const std::variant<RptRecords, NbrRecords>& records() const { return records_; }

    /// The first step from `step` on that may touch what is drawn, as far as looking at many steps
    /// at once can tell; the number of steps when there is none.
    [[nodiscard]] std::size_t firstThatMayTouch(const ViewTransform& view, std::size_t step) const;

    void trocha(float metres) override;
    [[nodiscard]] float getHectareasError(const MapStyle& style, float limit) const override;
    [[nodiscard]] bool hasSpecifiedDose() const override;
    void clearAlarmas() override;
    [[nodiscard]] float speedN(std::int32_t n) const override;
    [[nodiscard]] std::int32_t recordCount() const override {
        return static_cast<std::int32_t>(points_.size());
    }
    [[nodiscard]] WorkRecord recordN(std::int32_t n) const override;

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphTrack"; }
    [[nodiscard]] std::int32_t Gph_count() const override;
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    [[nodiscard]] bool Gph_animable() const override { return true; }
    void Gph_plot(MapContext& context) const override;
    bool Gph_plotN(MapContext& context, std::int32_t n) const override;
    /// Seconds to the next record of a report; 1 where that is 0 or the records carry no time.
    [[nodiscard]] float Gph_delayN(std::int32_t n) const override;
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& view, const MapStyle& style,
                                             LonLat position, std::int32_t start) const override;
    [[nodiscard]] std::string Gph_getInfo(const InfoContext& context,
                                          std::int32_t n) const override;

    [[nodiscard]] std::int32_t ExportablePolygon_polygonCount() const override;
    [[nodiscard]] std::int32_t ExportablePolygon_polygonNCount(const MapStyle& style,
                                                               std::int32_t polygon) const override;
    [[nodiscard]] LonLat ExportablePolygon_polygonNpoint(std::int32_t polygon,
                                                         std::int32_t point) const override;
    [[nodiscard]] std::int32_t ExportableData_getDataCount() const override;
    [[nodiscard]] int ExportableData_getColumnCount() const override;
    [[nodiscard]] std::string ExportableData_getColumnNname(int column) const override;
    [[nodiscard]] ColumnType ExportableData_getColumnNtype(int column) const override;
    [[nodiscard]] CellValue ExportableData_getCell(std::int32_t row, int column,
                                                   const CellOptions& options) const override;
    /// Those of reports do.
    [[nodiscard]] bool ExportableAlarms_any() const override;
    [[nodiscard]] std::string ExportableAlarms_names(std::int32_t row,
                                                     const Texts& texts) const override;
    [[nodiscard]] std::int32_t ExportablePoint_pointCount() const override;
    [[nodiscard]] LonLat ExportablePoint_pointN(std::int32_t point) const override;

private:
    /// Of `kStretch` steps one after the other: the corners of their points.
    struct Stretch {
        LonLat least;
        LonLat greatest;
    };
    static constexpr std::size_t kStretch = 128;

    void growStretches(LonLat point);
    template <typename Record>
    void append(double x, double y, const Record& record);
    [[nodiscard]] bool isStep(std::int32_t index) const;

    std::vector<LonLat> points_;
    std::variant<RptRecords, NbrRecords> records_;
    BoundingBox bound_;
    std::vector<Stretch> stretches_;
    float widestSwath_ = 0;  // metres; no record is wider
};

}  // namespace campora
