// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/dates.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "base/numbers.h"

namespace campora {

namespace {

constexpr std::int64_t kDayOf1970 = 25569;  // 1 January 1970, counted from 30 December 1899
constexpr std::int64_t kDaysOf400Years = 146097;
constexpr int kMinutesOfDay = 24 * 60;
constexpr int kSecondsOfDay = kMinutesOfDay * 60;

constexpr std::int64_t floorDivide(std::int64_t value, std::int64_t divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// Days from 1 January 1970 to the first of a month (1 to 12).
/// Source: Howard Hinnant, "chrono-Compatible Low-Level Date Algorithms", days_from_civil. The year
/// begins in March there, so that the leap day is its last.
constexpr std::int64_t daysToMonth(std::int64_t year, std::int64_t month) {
    const std::int64_t shifted = month > 2 ? year : year - 1;
    const std::int64_t era = floorDivide(shifted, 400);
    const std::int64_t yearOfEra = shifted - era * 400;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * kDaysOf400Years + dayOfEra - 719468;
}

std::string padded(int value, std::size_t digits) {
    std::string text = numberText(std::abs(value));
    text.insert(0, digits > text.size() ? digits - text.size() : 0, '0');
    return value < 0 ? "-" + text : text;
}

std::string fieldText(const Date& date, char field, std::size_t letters) {
    const std::size_t digits = std::min<std::size_t>(letters, 2);
    if (field == 'd') {
        return padded(date.day, digits);
    }
    if (field == 'm') {
        return padded(date.month, digits);
    }
    return letters > 2 ? padded(date.year, 4) : padded(std::abs(date.year % 100), digits);
}

constexpr int wrapped(int difference, int whole) {
    return difference < 0 ? difference + whole : difference;
}

}  // namespace

std::int32_t dayNumber(const Date& date) {
    const std::int64_t months = std::int64_t{date.month} - 1;
    const std::int64_t years = floorDivide(months, 12);
    const std::int64_t first = daysToMonth(date.year + years, months - years * 12 + 1);
    const std::int64_t day = kDayOf1970 + first + date.day - 1;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(
        day, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

Date dateOfDayNumber(std::int32_t day) {
    // Source: as above, civil_from_days.
    const std::int64_t shifted = std::int64_t{day} - kDayOf1970 + 719468;
    const std::int64_t era = floorDivide(shifted, kDaysOf400Years);
    const std::int64_t dayOfEra = shifted - era * kDaysOf400Years;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const std::int64_t month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    const std::int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return {static_cast<int>(year), static_cast<int>(month),
            static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1)};
}

Date normalized(const Date& date) {
    return dateOfDayNumber(dayNumber(date));
}

DateTime decodeFatDateTime(std::uint32_t value) {
    const auto field = [value](unsigned shift, unsigned bits) {
        return static_cast<int>((value >> shift) & ((1U << bits) - 1U));
    };
    return {{1980 + field(25, 7), field(21, 4), field(16, 5)},
            {field(11, 5), field(5, 6), 2 * field(0, 5)}};
}

std::uint32_t encodeFatDateTime(const DateTime& value) {
    const auto field = [](int number, unsigned shift, unsigned bits) {
        return (static_cast<std::uint32_t>(number) & ((1U << bits) - 1U)) << shift;
    };
    const Date& date = value.date;
    const TimeOfDay& time = value.time;
    return field(date.year - 1980, 25, 7) | field(date.month, 21, 4) | field(date.day, 16, 5) |
           field(time.hour, 11, 5) | field(time.minute, 5, 6) | field(time.second / 2, 0, 5);
}

std::string timeText(const TimeOfDay& time) {
    return padded(time.hour, 2) + ":" + padded(time.minute, 2) + ":" + padded(time.second, 2);
}

std::string dateText(const Date& date, std::string_view form) {
    const Date day = normalized(date);
    std::string text;
    for (std::size_t at = 0; at < form.size();) {
        const char letter = form[at];
        const std::size_t end = std::min(form.find_first_not_of(letter, at), form.size());
        const char field = letter == 'M' ? 'm' : letter;
        if (field == 'd' || field == 'm' || field == 'y') {
            text += fieldText(day, field, end - at);
        } else {
            text.append(form.substr(at, end - at));
        }
        at = end;
    }
    return text;
}

int minutesBetween(const TimeOfDay& from, const TimeOfDay& to) {
    return wrapped(60 * (to.hour - from.hour) + to.minute - from.minute, kMinutesOfDay);
}

int secondsBetween(const TimeOfDay& from, const TimeOfDay& to) {
    return wrapped(to.secondOfDay() - from.secondOfDay(), kSecondsOfDay);
}

}  // namespace campora
