// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "presc/channel_zones.h"
#include "presc/grid_layer.h"
#include "presc/grid_layout.h"

namespace campora {

/// The doses that a product is used with; what is not set is no limit.
struct DoseLimits {
    std::optional<double> least;
    std::optional<double> most;

    bool operator==(const DoseLimits&) const = default;
};

/// Part of the cells of a channel: those with a dose.
struct CellSum {
    double hectares = 0;
    double product = 0;
};

/// What is to be known of one channel before a console works by it.
struct ChannelCheck {
    CellSum all;
    /// The cells that have their dose from a zone, and the others; none where the maps that the
    /// grid was made of are not there.
    std::optional<CellSum> zones;
    std::optional<CellSum> fallback;
    /// Cells with a dose below 0, which consoles take as 0, and with the greatest of the format.
    std::int64_t negative = 0;
    std::int64_t full = 0;
    /// Doses of zones that differ by more than 1 per cent from what stands in the file.
    struct Rounded {
        float asked = 0;
        double written = 0;
    };
    std::vector<Rounded> rounded;
    /// Square metres; none without zones.
    std::optional<double> smallestZone;
};

/// A file that was read back, beside what it was to hold.
struct PrescriptionCheck {
    std::int64_t cells = 0;
    double cellMetres = 0;
    /// The greatest dose that the format holds.
    double mostDose = 0;
    /// Whether the grid lies where it was to lie, as far as the format can say that; none where
    /// there is nothing to compare it with.
    std::optional<bool> isSameGrid;
    /// Cells with another dose in any channel than asked for; none without such a comparison.
    std::optional<std::int64_t> different;
    std::vector<ChannelCheck> channels;

    /// False for a file that does not hold what was asked for.
    [[nodiscard]] bool agrees() const {
        return isSameGrid.value_or(true) && different.value_or(0) == 0;
    }
};

/// What can be told of the file alone.
[[nodiscard]] PrescriptionCheck checkGrid(const GridLayer& file);
/// The same, and beside what it was made of, by which rule.
[[nodiscard]] PrescriptionCheck
checkGrid(const GridLayer& file, std::span<const ChannelZones> zones, const GridRule& rule);
/// The same beside the cells that are open.
[[nodiscard]] PrescriptionCheck checkGrid(const GridLayer& file, const GridLayer& open);

/// Cells whose dose is not 0 and beyond the limits. Throws `std::out_of_range` for a bad channel.
[[nodiscard]] std::int64_t cellsBeyond(const GridLayer& file, int channel,
                                       const DoseLimits& limits);

}  // namespace campora
