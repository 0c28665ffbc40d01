// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/lon_lat.h"
#include "model/work_layer.h"

namespace campora {

/// What is looked at in the records of a job.
struct FindingOptions {
    /// Per cent; a dose that is farther from the specified one is off.
    float errorLimit = 10;
    /// Of the doses; -1: all channels together, as the error map has them by default, and for what
    /// is off its dose each of them too.
    int channel = -1;
    /// The alarms that mean something on the machine of the job, a bit each; others are no alarm.
    std::uint32_t knownAlarms = 0;
};

/// When a record was made.
struct RecordTime {
    RecordClock clock = RecordClock::None;
    /// As in `WorkRecord`.
    std::int64_t second = 0;

    bool operator==(const RecordTime&) const = default;
};

/// A record and the step from it to the next.
struct WayRecord {
    LonLat position;
    std::int64_t second = 0;
    float swath = 0;  ///< metres; 0 where the file has none that makes sense
    float speed = 0;  ///< km/h; 0 where none was recorded
    /// In the channel that was asked for; 0 for no product. Not a number where product came out but
    /// how much cannot be told.
    float dose = 0;
    float specified = 0;  ///< 0 for none
    std::uint32_t alarms = 0;
    RecordClock clock = RecordClock::None;
    /// Product came out, in the channel that was asked for.
    bool dosed = false;
    /// The last of a pass of the log: its step leads to another pass and did no work.
    bool endsPass = false;
};

/// What one channel of a record got and was to get, where 0 is none.
struct ChannelDose {
    float dose = 0;
    float specified = 0;
};

/// How far the dose of a record is from the specified one, as a share of that; the record has one.
template <typename Dosed>
[[nodiscard]] double deviationOf(const Dosed& record) {
    const auto specified = static_cast<double>(record.specified);
    return std::abs(static_cast<double>(record.dose) - specified) / specified;
}

/// The records of a job in one row: all passes of the log one after the other. Step n leads from
/// record n to the next; measures between two records are those of the steps between them.
class WorkWay {
public:
    WorkWay(std::span<const WorkLayer* const> layers, const FindingOptions& options);

    [[nodiscard]] std::span<const WayRecord> records() const { return records_; }
    /// Channel by channel; nothing where all of the job have one, where one alone was asked for and
    /// where the dose of the record cannot be told.
    [[nodiscard]] std::span<const ChannelDose> channels(std::size_t record) const;
    /// One less than the records.
    [[nodiscard]] std::size_t steps() const { return records_.empty() ? 0 : records_.size() - 1; }
    [[nodiscard]] double metres(std::size_t from, std::size_t to) const {
        return metres_[to] - metres_[from];
    }
    /// None where a clock is missing, stands still all over the job, or goes back on the way. A
    /// time of day that goes on after midnight does not go back. Records of one second share the
    /// time until the next, since many clocks count in steps of two.
    [[nodiscard]] std::optional<double> seconds(std::size_t from, std::size_t to) const;
    /// For the rules that ask how long something took. Where `seconds` has no answer, a step lasts
    /// as long as its length at its speed, and a second where no speed was recorded either.
    [[nodiscard]] double assumedSeconds(std::size_t from, std::size_t to) const {
        return assumed_[to] - assumed_[from];
    }
    /// Ground under the swath of a step.
    [[nodiscard]] double squareMetres(std::size_t step) const {
        return metres(step, step + 1) * static_cast<double>(records_[step].swath);
    }
    [[nodiscard]] RecordTime time(std::size_t record) const {
        return {records_[record].clock, records_[record].second};
    }
    /// Half way between two records, along the way.
    [[nodiscard]] LonLat middle(std::size_t from, std::size_t to) const;
    /// Seconds from one time of the clock to the next, as most of the job has them (median); none
    /// without a clock.
    [[nodiscard]] std::optional<double> usualInterval() const { return usualInterval_; }

private:
    void read(std::span<const WorkLayer* const> layers, const FindingOptions& options);
    void readChannels(std::span<const WorkLayer* const> layers);
    void dropClockThatStands();
    void measure();
    [[nodiscard]] std::vector<double> clockSteps() const;
    void shareSeconds(std::vector<double>& seconds) const;

    std::vector<WayRecord> records_;
    /// `channelCount_` a record.
    std::vector<ChannelDose> channels_;
    std::size_t channelCount_ = 0;
    // From the first record to each.
    std::vector<double> metres_;
    std::vector<double> assumed_;
    std::vector<std::uint32_t> withoutClock_;
    std::optional<double> usualInterval_;
};

/// The positions of records `first` to `last` of a job, counted as in `WorkWay`.
[[nodiscard]] std::vector<LonLat> positionsOf(std::span<const WorkLayer* const> layers,
                                              std::size_t first, std::size_t last);

/// The one in the middle in order of size, the greater of two; none of none.
[[nodiscard]] std::optional<double> medianOf(std::vector<double> values);

}  // namespace campora
