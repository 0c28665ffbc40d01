// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/strip_texts.h"

#include <cmath>

#include "app/clock_text.h"
#include "app/figure_text.h"
#include "base/numbers.h"
#include "model/shown_number.h"
#include "work/vex_alarmas.h"

namespace campora {

namespace {

constexpr std::string_view kBetween = "  ·  ";

WorkKind kindOf(const StripWords& words) {
    return words.units ? WorkKind::Seeder : WorkKind::Sprayer;
}

}  // namespace

std::string StripWords::number(double value) const {
    return shownNumber(value, locale);
}

std::string StripWords::dose(double value) const {
    const TextId unit = units ? TextId::UnitUnitsPerHectare : TextId::UnitLitresPerHectare;
    return number(value).append(" ").append(texts(unit));
}

std::string StripWords::speed(double value) const {
    return texts.format(TextId::SpeedReadout, {number(value)});
}

std::uint32_t StripWords::known(std::uint32_t alarms) const {
    return alarms & knownAlarms(kindOf(*this));
}

std::string positionText(const TimeSeries& series, double position, const StripWords& words) {
    if (series.isOverTime()) {
        return momentText(static_cast<std::int64_t>(std::floor(series.secondAt(position))),
                          series.clock().kind() == RecordClock::DateAndTime, words.locale);
    }
    const auto number = static_cast<std::int64_t>(std::floor(position)) + 1;
    return words.texts.format(TextId::StripRecord, {numberText(number)});
}

std::string recordText(const TimeSeries& series, std::size_t record, const StripWords& words) {
    const SeriesColumn told = series.record(record);
    std::string text = positionText(series, series.positionOf(record), words);
    text.append(kBetween);
    if (told.dose.empty()) {
        text.append(kNoFigure);
    } else {
        text.append(words.dose(static_cast<double>(told.dose.least)));
    }
    if (!told.specified.empty()) {
        const std::string specified = words.number(static_cast<double>(told.specified.least));
        text.append(" ").append(words.texts.format(TextId::StripSpecified, {specified}));
    }
    const bool hasSpeed = series.meanSpeed() > 0 && !told.speed.empty();
    text.append(kBetween).append(hasSpeed ? words.speed(static_cast<double>(told.speed.least))
                                          : std::string(kNoFigure));
    const std::string alarms = alarmNames(words.texts, kindOf(words), words.known(told.alarms));
    return alarms.empty() ? text : text.append(kBetween).append(alarms);
}

std::string stretchText(const TimeSeries& series, std::pair<std::size_t, std::size_t> records,
                        const StripWords& words) {
    const TimeSeries::Totals totals = series.totals(records.first, records.second);
    const TextId unit = words.units ? TextId::UnitProduct : TextId::UnitLitres;
    const std::string product =
        totals.product ? words.number(*totals.product).append(" ").append(words.texts(unit))
                       : std::string(kNoFigure);
    return words.texts.format(TextId::StripStretch, {words.number(totals.hectares), product,
                                                     totals.meanDose ? words.dose(*totals.meanDose)
                                                                     : std::string(kNoFigure),
                                                     durationText(totals.seconds)});
}

}  // namespace campora
