// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>

namespace campora {

template <typename T>
struct ValueRange {
    T least{};
    T greatest{};

    bool operator==(const ValueRange&) const = default;
};

/// Least and greatest values over everything loaded; none while no record has set a range.
struct ValueRanges {
    /// Litres per minute and litres per hectare of track files.
    std::optional<ValueRange<float>> flow;
    std::optional<ValueRange<float>> litres;
    /// Real dose of reports (total of all channels) and of text tables.
    std::optional<ValueRange<float>> dose;
    /// Day numbers of dated records.
    std::optional<ValueRange<std::int32_t>> date;

    bool operator==(const ValueRanges&) const = default;
};

/// Widens a range to hold `value`; the first value sets it.
template <typename T>
void extend(std::optional<ValueRange<T>>& range, T value) {
    if (!range) {
        range = ValueRange<T>{value, value};
        return;
    }
    if (value < range->least) {
        range->least = value;
    }
    if (value > range->greatest) {
        range->greatest = value;
    }
}

/// The range that holds both; a range that is not set holds nothing.
template <typename T>
[[nodiscard]] std::optional<ValueRange<T>> united(std::optional<ValueRange<T>> range,
                                                  const std::optional<ValueRange<T>>& other) {
    if (other) {
        extend(range, other->least);
        extend(range, other->greatest);
    }
    return range;
}

[[nodiscard]] inline ValueRanges united(const ValueRanges& a, const ValueRanges& b) {
    return {united(a.flow, b.flow), united(a.litres, b.litres), united(a.dose, b.dose),
            united(a.date, b.date)};
}

}  // namespace campora
