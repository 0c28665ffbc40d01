// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/strip_window.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

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

std::vector<StripTick> stripTicks(const StripWindow& window, RecordClock clock, int leastColumns,
                                  const UserLocale& locale) {
    const bool isTime = clock != RecordClock::None;
    const double least = std::max(window.perColumn() * leastColumns, 1.0);
    const std::int64_t step = isTime ? timeStep(least) : roundStep(least, 1);
    // Records are counted from 1.
    const std::int64_t shift = isTime ? 0 : 1;
    const auto first = static_cast<std::int64_t>(
        std::ceil((window.from() + static_cast<double>(shift)) / static_cast<double>(step)));
    std::vector<StripTick> ticks;
    for (std::int64_t at = first * step; static_cast<double>(at - shift) < window.to();
         at += step) {
        const auto column = roundToInt32(window.columnOf(static_cast<double>(at - shift)));
        ticks.push_back({column, isTime ? timeMark(at, step, clock, locale) : numberText(at)});
    }
    return ticks;
}

}  // namespace campora
