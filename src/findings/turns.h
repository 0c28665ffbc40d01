// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "findings/work_way.h"

namespace campora {

/// Degrees by which a turn changes the heading at least, and seconds within which it does so.
inline constexpr double kTurnDegrees = 60;
inline constexpr double kTurnSeconds = 10;

/// A stretch of work without a turn: from record `first` to record `last`, `last` > `first`.
struct WayRun {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// A job without its turns.
struct WayRuns {
    /// In the order of the work.
    std::vector<WayRun> runs;
    std::size_t turns = 0;
    /// Records that end a pass of the log from which the work goes straight on to the next pass.
    std::vector<std::size_t> straightOn;
};

/// Leaves the turns out: what lies between two headings more than `kTurnDegrees` apart that follow
/// each other within `kTurnSeconds`, or that are those of two passes of the log one after the
/// other. A corner turns in no time and divides the work all the same. What was driven between two
/// turns without dose in no more than `kTurnSeconds` is part of one turn, and so are the last
/// metres before a turn and the first ones after it without dose, when they are less than
/// `kTurnMargin`: there the boom is switched.
/// Headings are taken over at least `kHeadingMetres`: some logs keep positions to half a metre and
/// five of them a second.
[[nodiscard]] WayRuns leaveOutTurns(const WorkWay& way);

inline constexpr double kHeadingMetres = 3;
inline constexpr double kTurnMargin = 10;

/// Degrees from north, clockwise, 0 to below 360; none between two equal positions.
[[nodiscard]] std::optional<double> headingDegrees(LonLat from, LonLat to);

}  // namespace campora
