// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/strip_holes.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "app/clock_text.h"

namespace campora {

namespace {

/// What the window shows of a span; those that share a column are one.
void addShown(std::vector<StripHoles::Span>& spans, double from, double to,
              const StripWindow& window) {
    if (to < window.from() || from >= window.to()) {
        return;
    }
    const double left = std::max(window.columnOf(from), 0.0);
    const double right = std::min(window.columnOf(to), static_cast<double>(window.width()));
    if (!spans.empty() && left < spans.back().second + 1) {
        spans.back().second = std::max(spans.back().second, right);
    } else {
        spans.emplace_back(left, right);
    }
}

}  // namespace

StripHoles::StripHoles(std::span<const WorkLayer* const> passes) {
    Problems found = findProblems(passes, {});
    std::copy_if(found.rows.begin(), found.rows.end(), std::back_inserter(gaps_),
                 [](const Problem& problem) {
                     return problem.kind == ProblemKind::Gap && !isStop(problem);
                 });
}

const Problem* StripHoles::gapAfter(std::size_t record) const {
    const auto after =
        std::upper_bound(gaps_.begin(), gaps_.end(), record,
                         [](std::size_t n, const Problem& gap) { return n < gap.firstRecord; });
    const bool isIn = after != gaps_.begin() && record < std::prev(after)->lastRecord;
    return isIn ? &*std::prev(after) : nullptr;
}

std::string StripHoles::text(const TimeSeries& series, std::size_t record,
                             const StripWords& words) const {
    if (const Problem* const gap = gapAfter(record)) {
        const std::string size =
            gap->seconds ? durationText(static_cast<std::int64_t>(std::llround(*gap->seconds)))
                         : words.number(gap->metres).append(" m");
        return words.texts.format(TextId::StripMissing, {size});
    }
    const std::optional<std::int64_t> seconds = series.secondsAfter(record);
    const bool isPause = seconds && static_cast<double>(*seconds) > TimeSeries::kLongestHold;
    return isPause ? words.texts.format(TextId::StripPause, {durationText(seconds)})
                   : std::string();
}

std::vector<StripHoles::Span> StripHoles::missing(const TimeSeries& series,
                                                  const StripWindow& window) const {
    std::vector<Span> spans;
    for (const Problem& gap : gaps_) {
        addShown(spans, series.positionOf(gap.firstRecord), series.positionOf(gap.lastRecord),
                 window);
    }
    return spans;
}

std::vector<StripHoles::Span> foldedSpans(const TimeSeries& series, const StripWindow& window) {
    std::vector<StripHoles::Span> spans;
    for (const TimeFold& fold : series.folds()) {
        addShown(spans, fold.from, fold.to, window);
    }
    return spans;
}

}  // namespace campora
