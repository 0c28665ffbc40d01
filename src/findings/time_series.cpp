// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/time_series.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "model/measures.h"
#include "model/swath_geometry.h"

namespace campora {

namespace {

float doseOf(const std::array<float, WorkRecord::kMostChannels>& doses, const WorkRecord& record,
             int channel) {
    const auto c = static_cast<std::size_t>(channel);
    return c < record.channels ? doses[c] : 0;
}

/// Not a number where product came out and no dose could be computed.
float appliedOf(const WorkRecord& record, int channel) {
    const float together = record.appliedTotal();
    if (record.worked && !(together > 0)) {
        return std::numeric_limits<float>::quiet_NaN();
    }
    return channel < 0 ? together : doseOf(record.applied, record, channel);
}

}  // namespace

/// The columns that are asked for.
struct TimeSeries::Window {
    double from;
    double to;
    std::span<SeriesColumn> columns;

    [[nodiscard]] bool holds(double position) const { return position >= from && position < to; }
    [[nodiscard]] std::size_t columnOf(double position) const {
        const auto count = static_cast<double>(columns.size());
        const auto column = static_cast<std::size_t>((position - from) / (to - from) * count);
        return std::min(column, columns.size() - 1);
    }
    [[nodiscard]] double startOf(std::size_t column) const {
        return from +
               (to - from) * static_cast<double>(column) / static_cast<double>(columns.size());
    }
};

void SeriesRange::add(const SeriesRange& other) {
    least = other.least < least ? other.least : least;
    greatest = other.greatest > greatest ? other.greatest : greatest;
}

void SeriesColumn::add(const SeriesColumn& later) {
    dose.add(later.dose);
    specified.add(later.specified);
    speed.add(later.speed);
    alarms |= later.alarms;
    lastRecord = later.lastRecord;
}

TimeSeries::TimeSeries(std::span<const WorkLayer* const> passes, int channel) {
    std::size_t records = 0;
    for (const WorkLayer* pass : passes) {
        records += static_cast<std::size_t>(pass->recordCount());
    }
    seconds_.reserve(records);
    doses_.reserve(records);
    specified_.reserve(records);
    speeds_.reserve(records);
    alarms_.reserve(records);
    areas_.reserve(records);
    for (const WorkLayer* pass : passes) {
        addPass(*pass, channel);
    }
    if (!clock_.isUsable()) {
        seconds_ = {};
    }
    foldHoles();
    build();
}

void TimeSeries::foldHoles() {
    std::int64_t leftOut = 0;
    std::int64_t before = seconds_.empty() ? 0 : seconds_.front();
    for (std::int64_t& second : seconds_) {
        const std::int64_t hole = second - before;
        before = second;
        if (hole > kLongestHole) {
            leftOut += hole - kFolded;
            const std::int64_t to = second - leftOut;
            folds_.push_back({static_cast<double>(to - kFolded), static_cast<double>(to), leftOut});
        }
        second -= leftOut;
    }
}

double TimeSeries::secondAt(double position) const {
    const auto after =
        std::upper_bound(folds_.begin(), folds_.end(), position,
                         [](double at, const TimeFold& fold) { return at < fold.from; });
    if (after == folds_.begin()) {
        return position;
    }
    const TimeFold& fold = *std::prev(after);
    const auto leftOut = static_cast<double>(fold.leftOut);
    if (position >= fold.to) {
        return position + leftOut;
    }
    const std::int64_t before =
        std::prev(after) == folds_.begin() ? 0 : std::prev(after, 2)->leftOut;
    const double share = (position - fold.from) / (fold.to - fold.from);
    return position + static_cast<double>(before) +
           share * static_cast<double>(fold.leftOut - before);
}

std::optional<std::int64_t> TimeSeries::secondsAfter(std::size_t n) const {
    if (seconds_.empty() || n + 1 >= size()) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(secondAt(positionOf(n + 1)) - secondAt(positionOf(n)));
}

void TimeSeries::addPass(const WorkLayer& pass, int channel) {
    const std::int32_t count = pass.recordCount();
    if (count == 0) {
        return;
    }
    passStarts_.push_back(size());
    WorkRecord record = pass.recordN(0);
    for (std::int32_t n = 0; n < count; ++n) {
        seconds_.push_back(clock_.add(record));
        doses_.push_back(appliedOf(record, channel));
        specified_.push_back(channel < 0 ? record.specifiedTotal()
                                         : doseOf(record.specified, record, channel));
        speeds_.push_back(record.speed);
        alarms_.push_back(record.alarms);
        double area = 0;
        if (n + 1 < count) {
            const WorkRecord next = pass.recordN(n + 1);
            if (record.worked) {
                area = stepMetres(record.position, next.position) *
                       std::abs(static_cast<double>(record.swath));
            }
            record = next;
        }
        areas_.push_back(static_cast<float>(area));
    }
}

void TimeSeries::build() {
    levels_.emplace_back();
    Sum before;
    double speedSum = 0;
    std::size_t withSpeed = 0;
    for (std::size_t n = 0; n < size(); ++n) {
        if (n % kLeaf == 0) {
            sums_.push_back(before);
            levels_.front().emplace_back();
        }
        const SeriesColumn one = record(n);
        levels_.front().back().add(one);
        whole_.add(one);
        addStep(before, n);
        if (speeds_[n] > 0) {
            speedSum += static_cast<double>(speeds_[n]);
            ++withSpeed;
        }
    }
    meanSpeed_ = withSpeed > 0 ? speedSum / static_cast<double>(withSpeed) : 0;
    while (levels_.back().size() > 1) {
        const std::vector<SeriesColumn>& below = levels_.back();
        std::vector<SeriesColumn> level;
        level.reserve((below.size() + 1) / 2);
        for (std::size_t i = 0; i < below.size(); i += 2) {
            level.push_back(below[i]);
            if (i + 1 < below.size()) {
                level.back().add(below[i + 1]);
            }
        }
        levels_.push_back(std::move(level));
    }
}

SeriesColumn TimeSeries::record(std::size_t n) const {
    SeriesColumn one;
    one.dose.add(doses_[n]);
    if (specified_[n] > 0) {
        one.specified.add(specified_[n]);
    }
    one.speed.add(speeds_[n]);
    one.alarms = alarms_[n];
    one.lastRecord = n;
    return one;
}

double TimeSeries::positionOf(std::size_t n) const {
    return seconds_.empty() ? static_cast<double>(n) : static_cast<double>(seconds_[n]);
}

std::size_t TimeSeries::firstFrom(double position) const {
    if (seconds_.empty()) {
        const double first = std::ceil(std::max(position, 0.0));
        return first < static_cast<double>(size()) ? static_cast<std::size_t>(first) : size();
    }
    const auto found = std::lower_bound(
        seconds_.begin(), seconds_.end(), position,
        [](std::int64_t second, double at) { return static_cast<double>(second) < at; });
    return static_cast<std::size_t>(found - seconds_.begin());
}

std::size_t TimeSeries::recordAt(double position) const {
    // Of several records at one position the last is the one that lasts.
    const std::size_t after = firstFrom(std::nextafter(position, HUGE_VAL));
    return after == 0 ? 0 : after - 1;
}

TimeSeries::Place TimeSeries::placeOf(std::size_t n) const {
    const auto after = std::upper_bound(passStarts_.begin(), passStarts_.end(), n);
    const auto pass = static_cast<std::size_t>(after - passStarts_.begin()) - 1;
    return {pass, n - passStarts_[pass]};
}

void TimeSeries::columns(double from, double to, std::span<SeriesColumn> columns) const {
    std::fill(columns.begin(), columns.end(), SeriesColumn{});
    if (size() == 0 || columns.empty() || !(from < to)) {
        return;
    }
    const Window window{from, to, columns};
    fold(levels_.size() - 1, 0, window);
    hold(window);
}

void TimeSeries::fold(std::size_t level, std::size_t node, const Window& window) const {
    const std::size_t records = kLeaf << level;
    const std::size_t first = node * records;
    const std::size_t last = std::min(first + records, size()) - 1;
    const double begin = positionOf(first);
    const double end = positionOf(last);
    if (end < window.from || begin >= window.to) {
        return;
    }
    if (window.holds(begin) && window.holds(end) &&
        window.columnOf(begin) == window.columnOf(end)) {
        window.columns[window.columnOf(begin)].add(levels_[level][node]);
        return;
    }
    if (level == 0) {
        for (std::size_t n = first; n <= last; ++n) {
            if (const double at = positionOf(n); window.holds(at)) {
                window.columns[window.columnOf(at)].add(record(n));
            }
        }
        return;
    }
    fold(level - 1, 2 * node, window);
    if (2 * node + 1 < levels_[level - 1].size()) {
        fold(level - 1, 2 * node + 1, window);
    }
}

bool TimeSeries::goesOn(std::size_t n) const {
    const bool endsPass =
        n + 1 == size() || std::binary_search(passStarts_.begin(), passStarts_.end(), n + 1);
    return !endsPass && positionOf(n + 1) - positionOf(n) <= kLongestHold;
}

void TimeSeries::hold(const Window& window) const {
    const std::size_t after = firstFrom(window.from);
    std::size_t before = after == 0 ? SeriesColumn::kNoRecord : after - 1;
    bool isHeld = after > 0 && goesOn(before);
    for (SeriesColumn& column : window.columns) {
        if (column.lastRecord != SeriesColumn::kNoRecord) {
            before = column.lastRecord;
            isHeld = goesOn(before);
        } else if (isHeld) {
            column = record(before);
        }
    }
}

void TimeSeries::addStep(Sum& sum, std::size_t n) const {
    if (areas_[n] > 0) {
        const double hectares = static_cast<double>(areas_[n]) / kSquareMetresPerHectare;
        const bool isTold = !std::isnan(doses_[n]);
        sum.hectares += hectares;
        sum.product += isTold ? hectares * static_cast<double>(doses_[n]) : 0;
        sum.untold += isTold ? 0 : 1;
    }
}

TimeSeries::Sum TimeSeries::sumBefore(std::size_t n) const {
    Sum sum = sums_[n / kLeaf];
    for (std::size_t i = n / kLeaf * kLeaf; i < n; ++i) {
        addStep(sum, i);
    }
    return sum;
}

TimeSeries::Totals TimeSeries::totals(std::size_t first, std::size_t last) const {
    const Sum before = sumBefore(first);
    const Sum whole = sumBefore(last);
    Totals totals;
    // Sums that grow over a job leave something in their last digits.
    const bool any = std::any_of(areas_.begin() + static_cast<std::ptrdiff_t>(first),
                                 areas_.begin() + static_cast<std::ptrdiff_t>(last),
                                 [](float area) { return area > 0; });
    totals.hectares = any ? whole.hectares - before.hectares : 0;
    if (whole.untold == before.untold) {
        totals.product = any ? whole.product - before.product : 0;
        totals.meanDose = any ? std::optional(*totals.product / totals.hectares) : std::nullopt;
    }
    if (isOverTime()) {
        totals.seconds =
            static_cast<std::int64_t>(secondAt(positionOf(last)) - secondAt(positionOf(first)));
    }
    return totals;
}

}  // namespace campora
