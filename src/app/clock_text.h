// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/user_locale.h"

namespace campora {

/// "29/11/2016 14:03:10" in the user's form of dates, or "14:03:10". `second`: since 30 December
/// 1899, or since a midnight.
[[nodiscard]] std::string momentText(std::optional<std::int64_t> second, bool hasDate,
                                     const UserLocale& locale);
/// "0:12:05": hours, of any number, minutes and seconds.
[[nodiscard]] std::string durationText(std::optional<std::int64_t> seconds);

/// The day and the second of it of a moment, also of one before the first day.
struct DaySecond {
    std::int64_t day = 0;
    int second = 0;
};
[[nodiscard]] DaySecond daySecond(std::int64_t second);

}  // namespace campora
