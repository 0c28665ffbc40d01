// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/work_way.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "model/measures.h"
#include "model/swath_geometry.h"

namespace campora {

namespace {

constexpr double kNoClock = -1;

float doseOf(const WorkRecord& record, int channel) {
    if (!record.worked) {
        return 0;
    }
    const float total = record.appliedTotal();
    if (!(total > 0)) {
        return std::numeric_limits<float>::quiet_NaN();
    }
    if (channel < 0) {
        return total;
    }
    return channel < record.channels
               ? std::max(record.applied[static_cast<std::size_t>(channel)], 0.0F)
               : 0;
}

ChannelDose channelDose(const WorkRecord& record, std::size_t channel) {
    return {record.worked ? std::max(record.applied[channel], 0.0F) : 0,
            std::max(record.specified[channel], 0.0F)};
}

std::size_t mostChannels(std::span<const WorkLayer* const> layers) {
    std::size_t most = 0;
    for (const WorkLayer* layer : layers) {
        if (layer->recordCount() > 0) {
            most = std::max<std::size_t>(most, layer->recordN(0).channels);
        }
    }
    return most;
}

float specifiedOf(const WorkRecord& record, int channel) {
    if (channel < 0) {
        return std::max(record.specifiedTotal(), 0.0F);
    }
    return channel < record.channels
               ? std::max(record.specified[static_cast<std::size_t>(channel)], 0.0F)
               : 0;
}

/// Nothing for what no machine has: damaged records hold any number.
float sound(float value, double most) {
    return value > 0 && static_cast<double>(value) <= most ? value : 0;
}

WayRecord wayRecord(const WorkRecord& record, const FindingOptions& options) {
    constexpr double kFastestRecorded = 2000;  // km/h: more is a damaged record
    WayRecord way;
    way.position = record.position;
    way.second = record.second;
    way.clock = record.clock;
    way.swath = sound(record.swath, kWidestSwath);
    way.speed = sound(record.speed, kFastestRecorded);
    way.dose = doseOf(record, options.channel);
    way.specified = specifiedOf(record, options.channel);
    way.dosed = record.worked && !(way.dose <= 0);
    way.alarms = record.alarms & options.knownAlarms;
    return way;
}

/// Seconds of a step by its clock, or `kNoClock`.
double clockStep(const WayRecord& from, const WayRecord& to) {
    constexpr std::int64_t kDay = 86400;
    if (from.clock == RecordClock::None || from.clock != to.clock) {
        return kNoClock;
    }
    std::int64_t seconds = to.second - from.second;
    // A time of day says nothing of how many midnights have passed; half a day decides.
    if (seconds < -kDay / 2 && from.clock == RecordClock::TimeOfDay) {
        seconds += kDay;
    }
    return seconds < 0 ? kNoClock : static_cast<double>(seconds);
}

double assumedStep(const WayRecord& from, double metres, double clockSeconds) {
    constexpr double kKmhPerMetreSecond = 3.6;
    if (clockSeconds >= 0) {
        return clockSeconds;
    }
    return from.speed > 0 ? metres * kKmhPerMetreSecond / static_cast<double>(from.speed) : 1;
}

LonLat between(LonLat from, LonLat to, double share) {
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
}

}  // namespace

std::optional<double> medianOf(std::vector<double> values) {
    if (values.empty()) {
        return std::nullopt;
    }
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

WorkWay::WorkWay(std::span<const WorkLayer* const> layers, const FindingOptions& options) {
    read(layers, options);
    if (options.channel < 0) {
        readChannels(layers);
    }
    dropClockThatStands();
    measure();
}

void WorkWay::read(std::span<const WorkLayer* const> layers, const FindingOptions& options) {
    std::size_t count = 0;
    for (const WorkLayer* layer : layers) {
        count += static_cast<std::size_t>(layer->recordCount());
    }
    records_.reserve(count);
    for (const WorkLayer* layer : layers) {
        const std::int32_t records = layer->recordCount();
        for (std::int32_t n = 0; n < records; ++n) {
            records_.push_back(wayRecord(layer->recordN(n), options));
        }
        if (records > 0) {
            records_.back().endsPass = true;
        }
    }
}

void WorkWay::readChannels(std::span<const WorkLayer* const> layers) {
    channelCount_ = mostChannels(layers);
    if (channelCount_ < 2) {
        channelCount_ = 0;
        return;
    }
    channels_.reserve(records_.size() * channelCount_);
    for (const WorkLayer* layer : layers) {
        for (std::int32_t n = 0; n < layer->recordCount(); ++n) {
            const WorkRecord record = layer->recordN(n);
            for (std::size_t channel = 0; channel < channelCount_; ++channel) {
                channels_.push_back(channelDose(record, channel));
            }
        }
    }
}

std::span<const ChannelDose> WorkWay::channels(std::size_t record) const {
    return std::isfinite(records_[record].dose)
               ? std::span(channels_).subspan(record * channelCount_, channelCount_)
               : std::span<const ChannelDose>();
}

/// A clock that was never set tells no time.
void WorkWay::dropClockThatStands() {
    const auto moves = [this](const WayRecord& record) {
        return record.second != records_.front().second || record.clock != records_.front().clock;
    };
    if (records_.size() < 2 || std::any_of(records_.begin(), records_.end(), moves)) {
        return;
    }
    for (WayRecord& record : records_) {
        // A date is right to the day all the same.
        record.clock = record.clock == RecordClock::TimeOfDay ? RecordClock::None : record.clock;
    }
}

void WorkWay::measure() {
    std::vector<double> seconds = clockSteps();
    std::vector<double> moves;
    std::copy_if(seconds.begin(), seconds.end(), std::back_inserter(moves),
                 [](double step) { return step > 0; });
    usualInterval_ = medianOf(std::move(moves));
    if (usualInterval_) {
        shareSeconds(seconds);
    } else {
        std::fill(seconds.begin(), seconds.end(), kNoClock);
    }
    metres_.assign(records_.size(), 0);
    assumed_.assign(records_.size(), 0);
    withoutClock_.assign(records_.size(), 0);
    for (std::size_t i = 0; i < steps(); ++i) {
        const double step = stepMetres(records_[i].position, records_[i + 1].position);
        const double length = std::isfinite(step) ? step : 0;
        metres_[i + 1] = metres_[i] + length;
        assumed_[i + 1] = assumed_[i] + assumedStep(records_[i], length, seconds[i]);
        withoutClock_[i + 1] = withoutClock_[i] + (seconds[i] < 0 ? 1U : 0U);
    }
}

std::vector<double> WorkWay::clockSteps() const {
    std::vector<double> seconds(steps());
    for (std::size_t i = 0; i < seconds.size(); ++i) {
        seconds[i] = clockStep(records_[i], records_[i + 1]);
    }
    return seconds;
}

/// Steps of no time and the one after them share its time, as far as it is a usual one.
void WorkWay::shareSeconds(std::vector<double>& seconds) const {
    std::size_t first = 0;
    for (std::size_t i = 0; i < seconds.size(); ++i) {
        if (seconds[i] == 0) {
            continue;
        }
        if (seconds[i] > 0 && first < i) {
            const auto sharers = static_cast<double>(i - first + 1);
            const double share = std::min(seconds[i], *usualInterval_) / sharers;
            std::fill(seconds.begin() + static_cast<std::ptrdiff_t>(first),
                      seconds.begin() + static_cast<std::ptrdiff_t>(i), share);
            seconds[i] -= share * (sharers - 1);
        }
        first = i + 1;
    }
}

std::optional<double> WorkWay::seconds(std::size_t from, std::size_t to) const {
    if (withoutClock_[to] != withoutClock_[from]) {
        return std::nullopt;
    }
    return assumedSeconds(from, to);
}

LonLat WorkWay::middle(std::size_t from, std::size_t to) const {
    const double half = (metres_[from] + metres_[to]) / 2;
    const auto begin = metres_.begin() + static_cast<std::ptrdiff_t>(from);
    const auto end = metres_.begin() + static_cast<std::ptrdiff_t>(to) + 1;
    const auto after =
        static_cast<std::size_t>(std::upper_bound(begin, end, half) - metres_.begin());
    if (after == from || after > to) {
        return records_[from].position;
    }
    const double share = (half - metres_[after - 1]) / metres(after - 1, after);
    return between(records_[after - 1].position, records_[after].position, share);
}

std::vector<LonLat> positionsOf(std::span<const WorkLayer* const> layers, std::size_t first,
                                std::size_t last) {
    std::vector<LonLat> positions;
    std::size_t before = 0;
    for (const WorkLayer* layer : layers) {
        const auto count = static_cast<std::size_t>(layer->recordCount());
        for (std::size_t i = std::max(first, before); i <= last && i < before + count; ++i) {
            positions.push_back(layer->recordN(static_cast<std::int32_t>(i - before)).position);
        }
        before += count;
    }
    return positions;
}

}  // namespace campora
