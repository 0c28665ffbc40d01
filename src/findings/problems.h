// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/lon_lat.h"
#include "findings/work_way.h"
#include "model/work_layer.h"

namespace campora {

/// What went wrong on a stretch of work. By `UsualWork` the last three.
enum class ProblemKind : std::uint8_t {
    NoDose,  ///< no product although a dose was specified
    /// Product came out, in all channels together or in one of them farther from the specified dose
    /// than the error limit.
    OffDose,
    Alarm,  ///< one alarm
    Gap,    ///< no records for a time or a way
    Speed,  ///< dosed at a speed outside the job's usual range
    Swath,  ///< a swath other than that of the job
};

/// A stretch of work on which one thing was wrong.
struct Problem {
    ProblemKind kind = ProblemKind::NoDose;
    /// The bit of the alarm; -1 for other kinds.
    int alarm = -1;
    /// Of a dose that is off: the channel, from 0, that loses more than all of them together and
    /// most of them; `dose`, `specified` and `lost` are of it then. -1: of all together.
    int channel = -1;
    /// Counted from 0 through all layers of the file in their order. The stretch goes on to the
    /// record after the last one, as what a record says holds until the next; a gap lies between
    /// its two.
    std::size_t firstRecord = 0;
    std::size_t lastRecord = 0;
    RecordTime start;
    std::optional<double> seconds;
    double metres = 0;
    /// Under the swath; none for a gap between two passes of the log, which has no swath.
    std::optional<double> hectares;
    /// Means over these hectares: no product counts as 0, what cannot be told does not count. None
    /// for a gap, and where nothing was specified.
    std::optional<double> dose;
    std::optional<double> specified;
    /// Hectares times deviation (a share of the specified dose), summed up step by step: the ground
    /// whose product is missing or too much. None where `dose` or `specified` is.
    std::optional<double> lost;
    /// Half way along the stretch.
    LonLat position;
};

/// Whether a gap is the time of a stop: its ends are no farther apart than positions of a machine
/// that stands, so that no way is missing.
[[nodiscard]] bool isStop(const Problem& problem);

/// The problems of a job, in the order of its records, and how many turns were left out.
struct Problems {
    std::vector<Problem> rows;
    std::size_t turns = 0;
};

/// The problems of one file, turns left out (`leaveOutTurns`). Stretches of one kind on one pass
/// less than 3 seconds apart are one; it then lasts at least `kShortestSeconds` or is at least
/// `kShortestMetres` long. Between two passes of the log there is a gap only where the work went
/// straight on and the clock says that records are missing.
[[nodiscard]] Problems findProblems(std::span<const WorkLayer* const> layers,
                                    const FindingOptions& options);

}  // namespace campora
