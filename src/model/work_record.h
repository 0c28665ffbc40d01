// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "base/lon_lat.h"

namespace campora {

/// What a record says about when it was made.
enum class RecordClock : std::uint8_t { None, TimeOfDay, DateAndTime };

/// A record of any log in one form, for those who compute over work.
struct WorkRecord {
    static constexpr std::size_t kMostChannels = 5;

    LonLat position;
    float swath = 0;  ///< metres
    float speed = 0;  ///< km/h; 0 where none was recorded
    /// Seconds since 30 December 1899, or since midnight for a time of day; 0 without a clock.
    std::int64_t second = 0;
    RecordClock clock = RecordClock::None;
    /// Product came out on the way to the next record, as the summary counts it.
    bool worked = false;
    std::uint8_t channels = 1;  ///< 1 to `kMostChannels`
    /// A bit an alarm.
    std::uint32_t alarms = 0;
    /// Dose per hectare and channel, in the unit of the job; 0 where nothing was specified. A log
    /// of flows has one channel, with 0 where its dose cannot be computed.
    std::array<float, kMostChannels> applied{};
    std::array<float, kMostChannels> specified{};

    /// Of all channels together.
    [[nodiscard]] float appliedTotal() const { return total(applied); }
    [[nodiscard]] float specifiedTotal() const { return total(specified); }

private:
    [[nodiscard]] float total(const std::array<float, kMostChannels>& doses) const {
        float sum = 0;
        for (std::size_t channel = 0; channel < channels; ++channel) {
            sum += doses[channel];
        }
        return sum;
    }
};

}  // namespace campora
