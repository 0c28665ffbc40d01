// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/track_data_rpt.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

#include "platform/user_locale.h"
#include "work/vex_alarmas.h"

namespace campora {

// Reports of a million records stay in memory whole.
static_assert(sizeof(TrackDataRPT) <= 88);

namespace {

using Doses = TrackDataRPT::Doses;

void requireChannels(std::size_t channels) {
    if (channels > TrackDataRPT::kMaxChannels) {
        throw std::invalid_argument("TrackDataRPT: too many channels");
    }
}

Doses dosesOf(std::span<const std::int32_t> values) {
    requireChannels(values.size());
    Doses doses{};
    std::copy(values.begin(), values.end(), doses.begin());
    return doses;
}

float total(std::span<const std::int32_t> doses) {
    return static_cast<float>(std::accumulate(doses.begin(), doses.end(), std::int64_t{0}));
}

float percentOff(double real, double specified) {
    return static_cast<float>(std::abs(real - specified) / specified * 100);
}

}  // namespace

TrackDataRPT::TrackDataRPT(const Fields& fields)
    : real_(fields.real),
      spec_(fields.spec),
      swath_(fields.swath),
      speed_(fields.speed),
      alarms_(fields.alarms),
      pointIndex_(fields.pointIndex),
      channels_(fields.channels),
      code_(fields.code),
      hour_(static_cast<std::uint8_t>(fields.time.hour)),
      minute_(static_cast<std::uint8_t>(fields.time.minute)),
      second_(static_cast<std::uint8_t>(fields.time.second)),
      kind_(fields.kind),
      hasDate_(fields.date.has_value()) {
    requireChannels(fields.channels);
    if (fields.date) {
        year_ = static_cast<std::int16_t>(fields.date->year);
        month_ = static_cast<std::uint8_t>(fields.date->month);
        day_ = static_cast<std::uint8_t>(fields.date->day);
    }
}

std::span<const std::int32_t> TrackDataRPT::getCaudal() const {
    return std::span(real_).first(channels_);
}

std::span<const std::int32_t> TrackDataRPT::getDosis() const {
    return std::span(spec_).first(channels_);
}

void TrackDataRPT::setCaudal(std::span<const std::int32_t> real) {
    real_ = dosesOf(real);
    channels_ = static_cast<std::uint8_t>(real.size());
}

void TrackDataRPT::setDosis(std::span<const std::int32_t> spec) {
    spec_ = dosesOf(spec);
}

TimeOfDay TrackDataRPT::time() const {
    return {hour_, minute_, second_};
}

Date TrackDataRPT::fecha() const {
    return normalized({year_, month_, day_});
}

std::string TrackDataRPT::hora() const {
    return timeText(time());
}

double TrackDataRPT::fechaHora(const Date& today) const {
    constexpr double kSecondsPerDay = 86400;
    return dayNumber(hasDate_ ? fecha() : today) + time().secondOfDay() / kSecondsPerDay;
}

std::string TrackDataRPT::fechaHoraStr(const UserLocale& locale) const {
    return hasDate_ ? dateText(fecha(), locale.shortDateForm()) + " - " + hora() : hora();
}

std::string TrackDataRPT::getTimeDifStr(const TrackDataRPT& other, const Texts& texts) const {
    std::string text;
    if (hasDate_ && other.hasDate_) {
        const std::int32_t days = dayNumber(fecha()) - dayNumber(other.fecha());
        if (days > 0) {
            text = texts.format(TextId::DaysLater, {std::to_string(days)});
        }
    }
    return text + std::to_string(minutesBetween(other.time(), time()));
}

float TrackDataRPT::dosisTotal() const {
    return total(getDosis());
}

WorkRecord TrackDataRPT::workRecord(LonLat position) const {
    constexpr std::int64_t kSecondsPerDay = 86400;
    WorkRecord record;
    record.position = position;
    record.swath = swath_;
    record.speed = speed_;
    record.second = time().secondOfDay();
    record.clock = RecordClock::TimeOfDay;
    if (hasDate_) {
        record.second += dayNumber(fecha()) * kSecondsPerDay;
        record.clock = RecordClock::DateAndTime;
    }
    record.worked = caudal() > 0;
    record.channels = channels_;
    record.alarms = alarms_;
    for (std::size_t channel = 0; channel < channels_; ++channel) {
        record.applied[channel] = static_cast<float>(real_[channel]);
        record.specified[channel] = static_cast<float>(spec_[channel]);
    }
    return record;
}

float TrackDataRPT::caudal() const {
    return total(getCaudal());
}

void TrackDataRPT::caudal(float /*rate*/) {}

float TrackDataRPT::getError(int channel) const {
    if (channel < 0) {
        const float specified = dosisTotal();
        return specified <= 0 ? 0 : percentOff(caudal(), specified);
    }
    if (channel >= channels_) {
        return 0;
    }
    const auto c = static_cast<std::size_t>(channel);
    return spec_[c] < 1 ? 0 : percentOff(real_[c], spec_[c]);
}

bool TrackDataRPT::onAlarm(const MapStyle& style) const {
    return (alarms_ & knownAlarms(kind_) & checkedAlarms(style, kind_)) != 0;
}

Color TrackDataRPT::color(const MapStyle& style) const {
    const MapColors& colors = style.colors;
    if (style.mode == ColorMode::Alarm) {
        return onAlarm(style) ? colors.alarm : colors.noAlarm;
    }
    if (style.mode == ColorMode::Date) {
        // A record without a date belongs to no day of the map; any class of the scale would claim
        // that it was worked on that day.
        return hasDate_ && style.scale != nullptr
                   ? scaleOf(style, kind_).getColor(dayNumber(fecha()))
                   : colors.noDraw;
    }
    if (!style.scaleShown()) {
        return real_[0] == 0 ? colors.noDraw : colors.draw;
    }
    if (style.mode == ColorMode::Error && getError(style.selectedChannel) >= style.errorLimit) {
        return style.errorSample;
    }
    return scaleOf(style, kind_).getColor(scaledValue(style));
}

double TrackDataRPT::scaledValue(const MapStyle& style) const {
    const int channel = style.selectedChannel;
    if (channel < 0) {
        return caudal();
    }
    return channel < channels_ ? real_[static_cast<std::size_t>(channel)] : 0;
}

}  // namespace campora
