// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sample_job/job.h"

namespace campora::sample {

/// The files that consoles write about a job, as bytes.

/// Binary report with a header: one record each, little-endian.
[[nodiscard]] std::string reportBytes(const Job& job);

/// Text table with 8 columns, decimal points, Windows-1252.
[[nodiscard]] std::string tableText(const Job& job);

/// Logger track file, version 1.3, flow in litres a minute; a blank line between passes, and the
/// last record of a pass again as the first of the next.
[[nodiscard]] std::string trackText(const Job& job);

/// Further lines of a summary: name, value.
using SummaryLines = std::vector<std::pair<std::string_view, std::string_view>>;

/// Summary beside a track file, Windows-1252, with decimal commas.
[[nodiscard]] std::string summaryText(const Job& job, std::string_view trackName,
                                      const SummaryLines& further);

}  // namespace campora::sample
