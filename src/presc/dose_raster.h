// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/failure.h"
#include "platform/dialogs.h"
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

/// Why a zone's dose cannot stand in a file, with the first such zone named; none when all can.
[[nodiscard]] std::optional<Failure> doseFault(std::span<const ChannelZones> channels,
                                               const DoseScale& scale);

/// The doses of all cells in steps, cell by cell, channel 1 first. `fallback`: steps for the cells
/// of each channel without a zone. All doses fit. None when the user cancels.
[[nodiscard]] std::optional<std::vector<std::int16_t>>
dosesUnder(std::span<const ChannelZones> channels, const CellCentres& centres,
           const DoseScale& scale, std::span<const std::int16_t> fallback, Progress& progress);

}  // namespace campora
