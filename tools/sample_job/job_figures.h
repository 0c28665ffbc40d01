// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sample_job/job.h"

namespace campora::sample {

/// What the console sums up at the end of the day. Turns count: the way driven with the boom off
/// has its area and its dose of 0, as it has in reports.
struct JobFigures {
    double hectares = 0;     ///< way driven times the swath
    double litres = 0;       ///< applied through the first channel
    double averageDose = 0;  ///< mean of the first channel's records
    double averageKmh = 0;
    int minutes = 0;  ///< at work: without pauses of more than an hour
};

/// A job has at least two records.
[[nodiscard]] JobFigures figuresOf(const Job& job);

}  // namespace campora::sample
