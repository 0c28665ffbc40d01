// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/occurrences.h"
#include "model/value_ranges.h"
#include "work/pass_rules.h"
#include "work/report_check.h"
#include "work/rpt_view.h"
#include "work/value_bounds.h"

namespace campora {

/// What a first walk over a binary report tells: what becomes of each record, and the sums of the
/// summary. A million records take a million bytes here.
struct ReportSurvey {
    std::vector<Placement> placements;
    /// The first record with a position.
    std::optional<std::size_t> start;
    /// Sum of the real doses of each channel over all records with a position.
    std::array<std::int64_t, TrackDataRPT::kMaxChannels> doseSums{};
    double squareMetres = 0;
    double speedSum = 0;
    std::int64_t steps = 0;
    /// Without the breaks of more than an hour.
    std::int64_t workingSeconds = 0;
    /// Records without a position, and those that lie too far from the others; by their numbers.
    Occurrences withoutPosition;
    Occurrences farRecords;
    BoundsCheck bounds;
    ReportCheck check;
    /// Some loggers keep a running counter where others keep the alarms.
    bool alarmsAreCounter = false;

    /// A sum's mean over the steps; 0 without steps.
    [[nodiscard]] double perStep(double sum) const {
        return steps == 0 ? 0 : sum / static_cast<double>(steps);
    }
};

/// Checks swath, speed and doses of a record on the map; `record`: its number in the report.
void checkValues(LonLat position, const TrackDataRPT::Fields& fields, std::size_t record,
                 BoundsCheck& bounds);

/// Also widens the ranges of doses and dates.
[[nodiscard]] ReportSurvey surveyReport(const RptView& report, ValueRanges& ranges);

}  // namespace campora
