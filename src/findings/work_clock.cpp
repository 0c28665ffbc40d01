// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/work_clock.h"

#include <algorithm>

namespace campora {

namespace {

constexpr std::int64_t kDay = 86'400;

std::int64_t daysOn(std::size_t midnights) {
    return static_cast<std::int64_t>(midnights) * kDay;
}

}  // namespace

std::int64_t WorkClock::add(const WorkRecord& record) {
    std::int64_t second = record.second + daysOn(midnights_.size());
    if (count_ == 0) {
        kind_ = record.clock;
        first_ = second;
    } else {
        differs_ = differs_ || record.clock != kind_;
        if (second < last_ && kind_ == RecordClock::TimeOfDay && last_ - second > kDay / 2) {
            midnights_.push_back(count_);
            second += kDay;
        }
        runsBackwards_ = runsBackwards_ || (second < last_ && kind_ != RecordClock::None);
    }
    last_ = second;
    ++count_;
    return second;
}

std::optional<std::int64_t> WorkClock::secondOf(const WorkRecord& record, std::size_t n) const {
    if (!isUsable()) {
        return std::nullopt;
    }
    const auto after = std::upper_bound(midnights_.begin(), midnights_.end(), n);
    return record.second + daysOn(static_cast<std::size_t>(after - midnights_.begin()));
}

std::optional<std::int64_t> WorkClock::elapsedAt(const WorkRecord& record, std::size_t n) const {
    const std::optional<std::int64_t> second = secondOf(record, n);
    return second ? std::optional(*second - first_) : std::nullopt;
}

}  // namespace campora
