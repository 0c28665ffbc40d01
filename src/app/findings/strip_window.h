// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <vector>

#include "findings/time_series.h"
#include "model/work_record.h"
#include "platform/user_locale.h"

namespace campora {

/// Which part of an axis is shown in how many columns. It never leaves the axis and never shows
/// less than `kLeast` of it, unless the axis is shorter.
class StripWindow {
public:
    /// Seconds or records.
    static constexpr double kLeast = 10;

    /// Another axis, all of which is shown.
    void setWhole(double begin, double end);
    void setWidth(int columns);
    [[nodiscard]] int width() const { return width_; }

    [[nodiscard]] double from() const { return from_; }
    [[nodiscard]] double to() const { return to_; }
    /// What a column shows.
    [[nodiscard]] double perColumn() const { return (to_ - from_) / width_; }
    [[nodiscard]] double positionAt(double column) const { return from_ + column * perColumn(); }
    [[nodiscard]] double columnOf(double position) const {
        return (position - from_) / perColumn();
    }

    void show(double from, double to);
    /// What is at that column stays there; a factor below 1 shows less.
    void zoomAt(double column, double factor);
    void scroll(double columns);
    /// Scrolls as little as needed to show a position.
    void reveal(double position);

private:
    double begin_ = 0;
    double end_ = 1;
    double from_ = 0;
    double to_ = 1;
    int width_ = 1;
};

/// A mark on the axis.
struct StripTick {
    int column = 0;
    std::string text;

    bool operator==(const StripTick&) const = default;
};

/// Marks at round positions, at least `leastColumns` apart. With a clock they are times of day, and
/// dates at midnight where there are dates; without, numbers of records from 1. Where a fold ends
/// there is a mark with the time, or with the date when the day is another one.
[[nodiscard]] std::vector<StripTick> stripTicks(const StripWindow& window, RecordClock clock,
                                                std::span<const TimeFold> folds, int leastColumns,
                                                const UserLocale& locale);

}  // namespace campora
