// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/failure.h"
#include "platform/dialogs.h"
#include "presc/grid_layout.h"
#include "presc/zone_raster.h"

namespace campora {

/// Doses as a file counts them: whole steps of 16 bits.
struct DoseScale {
    /// In a unit of dose.
    double steps = 1;

    /// Rounded, halves to even; not limited to 16 bits.
    [[nodiscard]] double stepsOf(float dose) const;
    [[nodiscard]] bool holds(double steps) const;
};

[[nodiscard]] DoseScale doseScaleOf(GridKind kind);

/// Why a zone's dose cannot stand in a file, with the first such zone named; none when all can.
[[nodiscard]] std::optional<Failure> doseFault(std::span<const ChannelZones> channels,
                                               const DoseScale& scale);

struct GridDoses {
    /// In steps, cell by cell, channel 1 first.
    std::vector<std::int16_t> doses;
    /// Whether any cell has its dose from a zone.
    bool meetZones = false;
};

/// The doses of all cells. `fallback`: steps for the cells
/// of each channel without a zone. All doses fit. None when the user cancels.
[[nodiscard]] std::optional<GridDoses>
dosesUnder(std::span<const ChannelZones> channels, const CellCentres& centres,
           const DoseScale& scale, std::span<const std::int16_t> fallback, Progress& progress);

}  // namespace campora
