// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "findings/work_way.h"
#include "model/work_layer.h"

namespace campora {

/// Shorter in time and in way than both, a stretch is neither a pass nor a problem.
inline constexpr double kShortestSeconds = 2;
inline constexpr double kShortestMetres = 10;

/// A stretch of work between two turns.
struct Pass {
    /// Counted from 0 through all layers of the file in their order, the last one included.
    std::size_t firstRecord = 0;
    std::size_t lastRecord = 0;
    RecordTime start;
    std::optional<double> seconds;
    double metres = 0;
    /// That got product; as wide as the records say, so that ground covered again counts again.
    double hectares = 0;
    /// Mean over these hectares, and the standard deviation; none without them.
    std::optional<double> dose;
    std::optional<double> doseDeviation;
    /// Mean over the time of the records that have one.
    std::optional<double> speedKmh;
    /// From the first position to the last: degrees from north, clockwise.
    std::optional<double> headingDegrees;
    /// Of the doses that came out, as a share of the specified one; none where none was specified.
    std::optional<double> largestError;
};

/// The passes of one file in the order of the work, without the turns (`leaveOutTurns`). A pass of
/// the log with a turn on its way gives several.
[[nodiscard]] std::vector<Pass> findPasses(std::span<const WorkLayer* const> layers,
                                           const FindingOptions& options);

}  // namespace campora
