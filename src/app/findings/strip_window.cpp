// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/strip_window.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "app/clock_text.h"
#include "base/dates.h"
#include "base/numbers.h"

namespace campora {

namespace {

constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;
/// Seconds between marks that people count in.
constexpr std::int64_t kTimeSteps[] = {
    1,       2,           5,           10,           15,           30,
    kMinute, 2 * kMinute, 5 * kMinute, 10 * kMinute, 15 * kMinute, 30 * kMinute,
    kHour,   2 * kHour,   3 * kHour,   6 * kHour,    12 * kHour,   kDay};

/// 1, 2 or 5 times a power of ten, or as many times `unit`.
std::int64_t roundStep(double least, std::int64_t unit) {
    std::int64_t power = unit;
    while (true) {
        for (const std::int64_t times : {1, 2, 5}) {
            if (static_cast<double>(times * power) >= least) {
                return times * power;
            }
        }
        power *= 10;
    }
}

std::int64_t timeStep(double least) {
    for (const std::int64_t step : kTimeSteps) {
        if (static_cast<double>(step) >= least) {
            return step;
        }
    }
    return roundStep(least, kDay);
}

std::string timeMark(std::int64_t second, std::int64_t step, RecordClock clock,
                     const UserLocale& locale) {
    const DaySecond at = daySecond(second);
    if (at.second == 0 && clock == RecordClock::DateAndTime) {
        return dateText(dateOfDayNumber(static_cast<std::int32_t>(at.day)), locale.shortDateForm());
    }
    const std::string text = timeText({at.second / 3600, at.second / 60 % 60, at.second % 60});
    return step % kMinute == 0 ? text.substr(0, text.rfind(':')) : text;
}

/// Puts marks beside each other, from left to right.
class TickMaker {
public:
    TickMaker(const StripWindow& window, RecordClock clock, int leastColumns,
              const UserLocale& locale)
        : window_(window),
          clock_(clock),
          leastColumns_(leastColumns),
          locale_(locale),
          // Records are counted from 1.
          shift_(isTime() ? 0 : 1) {
        const double least = std::max(window.perColumn() * leastColumns, 1.0);
        step_ = isTime() ? timeStep(least) : roundStep(least, 1);
    }

    /// Round ones between two positions, before which `leftOut` seconds are not on the axis.
    void addRound(double from, double to, std::int64_t leftOut) {
        const auto ahead = static_cast<double>(leftOut + shift_);
        const double end = std::min(to, window_.to());
        const double first = std::ceil((from + ahead) / static_cast<double>(step_));
        for (std::int64_t at = static_cast<std::int64_t>(first) * step_;
             static_cast<double>(at) - ahead < end; at += step_) {
            const int column = columnOf(static_cast<double>(at) - ahead);
            if (isFree(column)) {
                ticks_.push_back(
                    {column, isTime() ? timeMark(at, step_, clock_, locale_) : numberText(at)});
            }
        }
    }

    /// Where work goes on; round marks make room for it.
    void addFold(const TimeFold& fold, std::int64_t leftOutBefore) {
        if (fold.to < window_.from() || fold.to >= window_.to()) {
            return;
        }
        const int column = columnOf(fold.to);
        while (ticks_.size() > folds_ && !isFree(column)) {
            ticks_.pop_back();
        }
        if (!isFree(column)) {
            return;
        }
        const std::int64_t before = static_cast<std::int64_t>(fold.from) + leftOutBefore;
        const std::int64_t after = static_cast<std::int64_t>(fold.to) + fold.leftOut;
        const bool isOtherDay =
            clock_ == RecordClock::DateAndTime && daySecond(before).day != daySecond(after).day;
        ticks_.push_back({column, timeMark(isOtherDay ? after - daySecond(after).second : after,
                                           kMinute, clock_, locale_)});
        folds_ = ticks_.size();
    }

    [[nodiscard]] std::vector<StripTick> take() { return std::move(ticks_); }

private:
    [[nodiscard]] bool isTime() const { return clock_ != RecordClock::None; }
    [[nodiscard]] int columnOf(double position) const {
        return roundToInt32(window_.columnOf(position));
    }
    [[nodiscard]] bool isFree(int column) const {
        return ticks_.empty() || column - ticks_.back().column >= leastColumns_;
    }

    const StripWindow& window_;
    RecordClock clock_;
    int leastColumns_;
    const UserLocale& locale_;
    std::int64_t shift_;
    std::int64_t step_ = 1;
    std::vector<StripTick> ticks_;
    /// How many marks there are up to that of the last fold.
    std::size_t folds_ = 0;
};

}  // namespace

void StripWindow::setWhole(double begin, double end) {
    begin_ = from_ = begin;
    end_ = to_ = std::max(end, begin + 1);
}

void StripWindow::setWidth(int columns) {
    width_ = std::max(columns, 1);
}

void StripWindow::show(double from, double to) {
    const double whole = end_ - begin_;
    const double shown = std::clamp(to - from, std::min(kLeast, whole), whole);
    from_ = std::clamp((from + to - shown) / 2, begin_, end_ - shown);
    to_ = from_ + shown;
}

void StripWindow::zoomAt(double column, double factor) {
    const double whole = end_ - begin_;
    const double shown = std::clamp((to_ - from_) * factor, std::min(kLeast, whole), whole);
    const double from = positionAt(column) - column / width_ * shown;
    show(from, from + shown);
}

void StripWindow::scroll(double columns) {
    const double by = columns * perColumn();
    show(from_ + by, to_ + by);
}

void StripWindow::reveal(double position) {
    if (position < from_) {
        scroll(columnOf(position));
    } else if (position > to_ - perColumn()) {
        scroll(columnOf(position) + 1 - width_);
    }
}

std::vector<StripTick> stripTicks(const StripWindow& window, RecordClock clock,
                                  std::span<const TimeFold> folds, int leastColumns,
                                  const UserLocale& locale) {
    TickMaker maker(window, clock, leastColumns, locale);
    double begin = window.from();
    std::int64_t leftOut = 0;
    for (const TimeFold& fold : folds) {
        maker.addRound(begin, fold.from, leftOut);
        maker.addFold(fold, leftOut);
        begin = std::max(begin, fold.to);
        leftOut = fold.leftOut;
    }
    maker.addRound(begin, window.to(), leftOut);
    return maker.take();
}

}  // namespace campora
