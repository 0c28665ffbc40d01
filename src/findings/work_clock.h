// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "model/work_record.h"

namespace campora {

/// The clocks of the records of a file, taken in the order in which they were made. A time of day
/// that falls by more than half a day has gone over midnight.
class WorkClock {
public:
    /// Takes the next record. Its second, as `secondOf` gives it; without meaning once the clock
    /// cannot be told.
    std::int64_t add(const WorkRecord& record);

    /// None when there are no records, when one of them has no clock or when their clocks differ.
    [[nodiscard]] RecordClock kind() const { return differs_ ? RecordClock::None : kind_; }
    /// A record was made before the one that comes before it.
    [[nodiscard]] bool runsBackwards() const { return !differs_ && runsBackwards_; }
    /// Whether times can be told at all.
    [[nodiscard]] bool isUsable() const { return kind() != RecordClock::None && !runsBackwards_; }

    /// Seconds since 30 December 1899, or since the midnight before the first record for times of
    /// day; none for a clock that is not usable. `record`: number `n`, which was added.
    [[nodiscard]] std::optional<std::int64_t> secondOf(const WorkRecord& record,
                                                       std::size_t n) const;
    /// Seconds from the first record to this one; none as above.
    [[nodiscard]] std::optional<std::int64_t> elapsedAt(const WorkRecord& record,
                                                        std::size_t n) const;

private:
    RecordClock kind_ = RecordClock::None;
    bool differs_ = false;
    bool runsBackwards_ = false;
    std::size_t count_ = 0;
    std::int64_t first_ = 0;
    std::int64_t last_ = 0;
    /// The first records after a midnight, ascending.
    std::vector<std::size_t> midnights_;
};

}  // namespace campora
