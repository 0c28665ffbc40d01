// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "presc/channel_zones.h"

namespace campora {

/// The centres of a grid's cells, in degrees: a longitude a column, ascending, and a latitude a
/// row, ascending or descending.
struct CellCentres {
    std::vector<double> x;
    std::vector<double> y;
};

inline constexpr std::int32_t kNoZone = -1;

/// The zone under the centre of every cell, row by row; `kNoZone` where there is none. The same
/// that a search with the centre finds, but zone by zone: each is laid over the rows that it
/// reaches, later ones over earlier ones.
/// `goOn` is told before each zone how many are done; the answer is none when it says no.
[[nodiscard]] std::optional<std::vector<std::int32_t>>
zonesUnder(const ChannelZones& channel, const CellCentres& centres,
           const std::function<bool(std::size_t zonesDone)>& goOn);

}  // namespace campora
