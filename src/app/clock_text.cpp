// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/clock_text.h"

#include <algorithm>
#include <cstddef>

#include "app/figure_text.h"
#include "base/dates.h"

namespace campora {

namespace {

constexpr std::int64_t kDay = 86'400;

TimeOfDay timeOf(int second) {
    return {second / 3600, second / 60 % 60, second % 60};
}

}  // namespace

DaySecond daySecond(std::int64_t second) {
    const std::int64_t inDay = (second % kDay + kDay) % kDay;
    return {(second - inDay) / kDay, static_cast<int>(inDay)};
}

std::string momentText(std::optional<std::int64_t> second, bool hasDate, const UserLocale& locale) {
    if (!second) {
        return std::string(kNoFigure);
    }
    const DaySecond at = daySecond(*second);
    std::string text;
    if (hasDate) {
        text =
            dateText(dateOfDayNumber(static_cast<std::int32_t>(at.day)), locale.shortDateForm()) +
            " ";
    }
    return text + timeText(timeOf(at.second));
}

std::string durationText(std::optional<std::int64_t> seconds) {
    if (!seconds) {
        return std::string(kNoFigure);
    }
    const std::int64_t hours = *seconds / 3600;
    const std::string inHour = timeText(timeOf(static_cast<int>(*seconds % 3600)));
    return std::to_string(hours) + inHour.substr(inHour.find(':'));
}

}  // namespace campora
