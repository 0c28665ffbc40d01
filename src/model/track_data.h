// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "base/color.h"
#include "model/cell_value.h"
#include "model/gph.h"

namespace campora {

/// The record behind one point of a track.
class TrackData {
public:
    virtual ~TrackData() = default;

    /// Rate of application: litres per minute of a track file, and of a report's record the dose
    /// of all channels together.
    [[nodiscard]] virtual float caudal() const = 0;
    virtual void caudal(float rate) = 0;
    /// Swath width in metres.
    [[nodiscard]] virtual float trocha() const = 0;
    virtual void trocha(float metres) = 0;

    [[nodiscard]] virtual Color color(const MapStyle& style) const = 0;
    /// Summary: lines ended by CR LF for the information box.
    [[nodiscard]] virtual std::string resumen(const InfoContext& context) const = 0;

    [[nodiscard]] virtual int getColumnCount() const = 0;
    /// Other column numbers give an empty name, type 0 and an empty cell.
    [[nodiscard]] virtual std::string getColumnNname(int column) const = 0;
    [[nodiscard]] virtual ColumnType getColumnNtype(int column) const = 0;
    [[nodiscard]] virtual CellValue getCell(int column, const CellOptions& options) const = 0;

protected:
    TrackData() = default;
    TrackData(const TrackData&) = default;
    TrackData& operator=(const TrackData&) = default;
    TrackData(TrackData&&) noexcept = default;
    TrackData& operator=(TrackData&&) noexcept = default;
};

}  // namespace campora
