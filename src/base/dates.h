// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace campora {

/// A day of the Gregorian calendar. Days and months that do not exist roll over when the date is
/// turned into a day number: day 0 of a month is the last day of the month before.
struct Date {
    int year = 0;
    int month = 0;
    int day = 0;

    bool operator==(const Date&) const = default;
};

/// Days since 30 December 1899 (day 0); years of any size give the nearest limit of the type.
[[nodiscard]] std::int32_t dayNumber(const Date& date);
[[nodiscard]] Date dateOfDayNumber(std::int32_t day);

/// The same day with month 1 to 12 and a day that the month has.
[[nodiscard]] Date normalized(const Date& date);

struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const TimeOfDay&) const = default;
    [[nodiscard]] constexpr int secondOfDay() const { return 3600 * hour + 60 * minute + second; }
};

struct DateTime {
    Date date;
    TimeOfDay time;

    bool operator==(const DateTime&) const = default;
};

/// Date in the high 16 bits, time in the low 16 bits, as in FAT directory entries (ECMA-107, 9.x):
/// years from 1980, seconds in steps of two. The fields are taken as they stand, unchecked.
[[nodiscard]] DateTime decodeFatDateTime(std::uint32_t value);
/// The inverse for dates from 1980 to 2107; odd seconds lose one.
[[nodiscard]] std::uint32_t encodeFatDateTime(const DateTime& value);

/// "hh:mm:ss", two digits each.
[[nodiscard]] std::string timeText(const TimeOfDay& time);

/// The date in a form such as "dd/mm/yyyy", "m/d/yy" or "yyyy-mm-dd": runs of d, m (or M) and y are
/// replaced, every other character stays. One d or m is the bare number, two or more have two
/// digits; one or two y are the year in its century, three or more the year with at least four
/// digits. The date is normalized first.
[[nodiscard]] std::string dateText(const Date& date, std::string_view form);

/// Minutes from `from` to `to` by hour and minute alone; 1440 added when negative.
[[nodiscard]] int minutesBetween(const TimeOfDay& from, const TimeOfDay& to);
/// Seconds from `from` to `to`; 86400 added when negative.
[[nodiscard]] int secondsBetween(const TimeOfDay& from, const TimeOfDay& to);

}  // namespace campora
