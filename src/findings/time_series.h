// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "findings/work_clock.h"
#include "model/work_layer.h"

namespace campora {

/// The least and the greatest of some values; empty before the first.
struct SeriesRange {
    float least = std::numeric_limits<float>::infinity();
    float greatest = -std::numeric_limits<float>::infinity();

    [[nodiscard]] bool empty() const { return least > greatest; }
    void add(const SeriesRange& other);
    /// What is no number is left out.
    void add(float value) { add(SeriesRange{value, value}); }

    bool operator==(const SeriesRange&) const = default;
};

/// Records that fall into one column of a picture.
struct SeriesColumn {
    static constexpr std::size_t kNoRecord = std::numeric_limits<std::size_t>::max();

    /// Of the records whose dose can be told: not where product came out and none was computed.
    SeriesRange dose;
    /// Of the records for which a dose was specified.
    SeriesRange specified;
    SeriesRange speed;
    /// Of any record, a bit an alarm.
    std::uint32_t alarms = 0;
    /// The last of them; `kNoRecord` while there is none.
    std::size_t lastRecord = kNoRecord;

    void add(const SeriesColumn& later);
    bool operator==(const SeriesColumn&) const = default;
};

/// A time without records that takes less of an axis than it lasted. Positions on the axis.
struct TimeFold {
    double from = 0;
    double to = 0;
    /// Seconds that this one and those before it leave out.
    std::int64_t leftOut = 0;

    bool operator==(const TimeFold&) const = default;
};

/// The records of a file over time, or over their numbers where their clocks are missing, differ or
/// run backwards. Positions on that axis are those of `WorkClock::secondOf`, less what folds before
/// them leave out, or numbers from 0. Keeps copies of what it needs.
class TimeSeries {
public:
    /// A hole in the records of a pass that lasts longer than this is left empty.
    static constexpr double kLongestHold = 60;
    /// Seconds: a hole that lasts longer than the one is folded to the other, so that a night does
    /// not take the room of the work.
    static constexpr std::int64_t kLongestHole = 1800;
    static constexpr std::int64_t kFolded = 120;

    /// What was done between two records: hectares as length times width of steps with product.
    struct Totals {
        double hectares = 0;
        /// Litres, or units: dose times hectares; none where a dose cannot be told.
        std::optional<double> product;
        /// None without product or hectares.
        std::optional<double> meanDose;
        /// From the first record to the last; none over numbers of records.
        std::optional<std::int64_t> seconds;
    };

    /// `passes`: of one file, in the order in which they were done. `channel`: whose doses, from 0;
    /// -1 for all together.
    explicit TimeSeries(std::span<const WorkLayer* const> passes, int channel = -1);

    /// How many records there are.
    [[nodiscard]] std::size_t size() const { return doses_.size(); }
    [[nodiscard]] bool isOverTime() const { return clock_.isUsable(); }
    [[nodiscard]] const WorkClock& clock() const { return clock_; }
    /// All that is told of a record.
    [[nodiscard]] SeriesColumn record(std::size_t n) const;
    [[nodiscard]] double positionOf(std::size_t n) const;
    /// In their order; none over numbers of records.
    [[nodiscard]] std::span<const TimeFold> folds() const { return folds_; }
    /// The second of `WorkClock::secondOf` at a position over time.
    [[nodiscard]] double secondAt(double position) const;
    /// Seconds from a record to the next; none for the last one and over numbers of records.
    [[nodiscard]] std::optional<std::int64_t> secondsAfter(std::size_t n) const;
    /// Whether what a record says holds until the next one.
    [[nodiscard]] bool goesOn(std::size_t n) const;
    /// The first record at or after a position; `size` when there is none.
    [[nodiscard]] std::size_t firstFrom(double position) const;
    /// The last record at or before a position; the first where there is none. There are records.
    [[nodiscard]] std::size_t recordAt(double position) const;
    /// Where a record lies: which pass, and which record of it.
    struct Place {
        std::size_t pass = 0;
        std::size_t record = 0;
    };
    [[nodiscard]] Place placeOf(std::size_t n) const;

    /// The records from `from` up to, but not at, `to` in as many columns of equal width. A column
    /// without a record of its own holds what the record before it says, as long as its pass goes
    /// on and `kLongestHold` is not exceeded. For w columns some w log(n / w) steps.
    void columns(double from, double to, std::span<SeriesColumn> columns) const;
    /// Of the steps between two records, the first of which is not after the last.
    [[nodiscard]] Totals totals(std::size_t first, std::size_t last) const;

    /// Of all records.
    [[nodiscard]] const SeriesColumn& whole() const { return whole_; }
    /// Of the records with a speed, km/h; 0 when none has one.
    [[nodiscard]] double meanSpeed() const { return meanSpeed_; }

private:
    /// Records of a leaf of the pyramid.
    static constexpr std::size_t kLeaf = 8;

    struct Sum {
        double hectares = 0;
        double product = 0;
        /// Steps with product whose dose cannot be told.
        std::size_t untold = 0;
    };
    struct Window;

    void addPass(const WorkLayer& pass, int channel);
    void build();
    void addStep(Sum& sum, std::size_t n) const;
    [[nodiscard]] Sum sumBefore(std::size_t n) const;
    void fold(std::size_t level, std::size_t node, const Window& window) const;
    void hold(const Window& window) const;
    void foldHoles();

    WorkClock clock_;
    std::vector<std::int64_t> seconds_;  // on the axis; empty over numbers of records
    std::vector<TimeFold> folds_;
    std::vector<float> doses_;  // not a number where it cannot be told
    std::vector<float> specified_;
    std::vector<float> speeds_;
    std::vector<std::uint32_t> alarms_;
    /// Square metres with product of the step after each record; 0 for the last of a pass.
    std::vector<float> areas_;
    std::vector<std::size_t> passStarts_;
    /// What came before each leaf.
    std::vector<Sum> sums_;
    /// Leaves first; each level has a node for two of the one below.
    std::vector<std::vector<SeriesColumn>> levels_;
    SeriesColumn whole_;
    double meanSpeed_ = 0;
};

}  // namespace campora
