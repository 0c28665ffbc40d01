// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "base/lon_lat.h"
#include "model/file.h"
#include "model/measures.h"
#include "platform/user_locale.h"

namespace campora {

/// The values of a record that the field sets bounds to.
enum class BoundedValue : std::uint8_t { Swath, Speed, Flow, Dose };

/// From 0 to `greatest`, in the unit of the value.
struct ValueBound {
    double greatest;
    TextId remark;
};

/// By `BoundedValue`. What lies beyond is a damaged value, no work: a bit that was turned round, a
/// field of another layout.
inline constexpr std::array kValueBounds{
    ValueBound{kWidestSwath, TextId::RemarkSwath},  // metres
    ValueBound{400, TextId::RemarkSpeed},           // km/h: aircraft spray below 300
    ValueBound{3000, TextId::RemarkFlow},           // l/min: aircraft dump some 2,000
    ValueBound{4999, TextId::RemarkDose}  // l, kg or units/ha: what is more counts in no sum
};

[[nodiscard]] constexpr bool isSound(BoundedValue value, double amount) {
    return amount >= 0 && amount <= kValueBounds[static_cast<std::size_t>(value)].greatest;
}

/// Watches over the records of a file while it is read.
class BoundsCheck {
public:
    /// `record`: its number in the file, from 1.
    void check(BoundedValue value, double amount, std::size_t record, LonLat position) {
        if (!isSound(value, amount)) {
            add(index(value), amount, record, position);
        }
    }
    [[nodiscard]] bool found(BoundedValue value) const { return found_[index(value)].count > 0; }
    [[nodiscard]] bool foundAny() const;
    /// A remark for each kind of value that was beyond its bound.
    void tell(File& file, const UserLocale& locale) const;

private:
    struct Found {
        std::size_t count = 0;
        /// Of the first.
        double amount = 0;
        std::size_t record = 0;
        LonLat position;
    };

    static constexpr std::size_t index(BoundedValue value) {
        return static_cast<std::size_t>(value);
    }
    void add(std::size_t value, double amount, std::size_t record, LonLat position);

    std::array<Found, kValueBounds.size()> found_{};
};

}  // namespace campora
