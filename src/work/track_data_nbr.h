// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "model/track_data.h"
#include "model/work_record.h"

namespace campora {

/// What all records of one logger file have in common.
struct LoggerSource {
    /// Serial number of the logger as the file gives it.
    std::string serie;
    /// The track file.
    std::string path;
    /// Registration of the aircraft, empty when unknown.
    std::string registration;
};

/// A record of a logger's track file.
class TrackDataNBR final : public TrackData {
public:
    /// `flow`: litres per minute; `speed`: km/h, 0 where the file has none; `swath`: metres.
    /// The source is shared because every record of a file refers to it and records move between
    /// tracks.
    TrackDataNBR(float flow, float speed, float swath, std::shared_ptr<const LoggerSource> source);

    /// Speed in km/h.
    [[nodiscard]] float velocidad() const { return speed_; }
    /// Serial number of the logger.
    [[nodiscard]] const std::string& serie() const { return source_->serie; }
    [[nodiscard]] const std::string& path() const { return source_->path; }

    /// Litres per hectare, with the speed in whole km/h (halves to even); 0 without speed or swath.
    [[nodiscard]] float litrosH() const;

    /// What the scale colours: litres per hectare or per minute.
    [[nodiscard]] double scaledValue(const MapStyle& style) const;
    /// The record in the form of all logs; `position`: of its point, degrees.
    [[nodiscard]] WorkRecord workRecord(LonLat position) const;

    /// Flow in litres per minute.
    [[nodiscard]] float caudal() const override { return flow_; }
    void caudal(float flow) override { flow_ = flow; }
    [[nodiscard]] float trocha() const override { return swath_; }
    void trocha(float metres) override { swath_ = metres; }
    [[nodiscard]] Color color(const MapStyle& style) const override;
    [[nodiscard]] std::string resumen(const InfoContext& context) const override;
    [[nodiscard]] int getColumnCount() const override;
    [[nodiscard]] std::string getColumnNname(int column) const override;
    [[nodiscard]] ColumnType getColumnNtype(int column) const override;
    [[nodiscard]] CellValue getCell(int column, const CellOptions& options) const override;

private:
    float flow_;
    float speed_;
    float swath_;
    std::shared_ptr<const LoggerSource> source_;
};

}  // namespace campora
