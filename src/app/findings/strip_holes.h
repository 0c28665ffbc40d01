// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "app/findings/strip_texts.h"
#include "app/findings/strip_window.h"
#include "findings/problems.h"
#include "findings/time_series.h"

namespace campora {

/// Where the records of a file do not follow each other: some are missing there, as the table of
/// problems says, or the machine stood.
class StripHoles {
public:
    /// From column to column.
    using Span = std::pair<double, double>;

    StripHoles() = default;
    explicit StripHoles(std::span<const WorkLayer* const> passes);

    /// What comes between a record and the next, and how long it is; "" where they follow.
    [[nodiscard]] std::string text(const TimeSeries& series, std::size_t record,
                                   const StripWords& words) const;
    /// Where records are missing, as far as it is shown.
    [[nodiscard]] std::vector<Span> missing(const TimeSeries& series,
                                            const StripWindow& window) const;

private:
    /// The one that lies between a record and the next; none: null.
    [[nodiscard]] const Problem* gapAfter(std::size_t record) const;

    /// In the order of the records.
    std::vector<Problem> gaps_;
};

/// The pauses that take less room than they lasted, as far as they are shown.
[[nodiscard]] std::vector<StripHoles::Span> foldedSpans(const TimeSeries& series,
                                                        const StripWindow& window);

}  // namespace campora
