// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/vex_alarmas.h"

#include <span>

namespace campora {

namespace {

struct Alarm {
    int bit = 0;
    TextId text{};
};

constexpr Alarm kSeederAlarms[] = {
    {0, TextId::AlarmSeeding},       {1, TextId::AlarmFertilizer},   {4, TextId::AlarmShaft},
    {5, TextId::AlarmDensity},       {8, TextId::AlarmSpeed},        {9, TextId::AlarmNodeOff},
    {12, TextId::AlarmMotor1Silent}, {13, TextId::AlarmMotor1Fast},  {14, TextId::AlarmMotor1Slow},
    {16, TextId::AlarmMotor2Silent}, {17, TextId::AlarmMotor2Fast},  {18, TextId::AlarmMotor2Slow},
    {20, TextId::AlarmMotor3Silent}, {21, TextId::AlarmMotor3Fast},  {22, TextId::AlarmMotor3Slow},
    {24, TextId::AlarmMotor4Silent}, {25, TextId::AlarmMotor4Fast},  {26, TextId::AlarmMotor4Slow},
    {28, TextId::AlarmLowVoltage},   {29, TextId::AlarmHighVoltage},
};

constexpr Alarm kSprayerAlarms[] = {
    {0, TextId::AlarmHighPressure}, {1, TextId::AlarmLowPressure}, {8, TextId::AlarmSpeed},
    {9, TextId::AlarmNodeOff},      {10, TextId::AlarmFuses},
};

constexpr std::uint32_t bitsOf(std::span<const Alarm> alarms) {
    std::uint32_t bits = 0;
    for (const Alarm& alarm : alarms) {
        bits |= 1U << static_cast<unsigned>(alarm.bit);
    }
    return bits;
}

constexpr std::uint32_t kSeederBits = bitsOf(kSeederAlarms);
constexpr std::uint32_t kSprayerBits = bitsOf(kSprayerAlarms);

}  // namespace

std::string_view alarmText(const Texts& texts, WorkKind kind, int bit) {
    const std::span<const Alarm> alarms = kind == WorkKind::Sprayer
                                              ? std::span<const Alarm>(kSprayerAlarms)
                                              : std::span<const Alarm>(kSeederAlarms);
    for (const Alarm& alarm : alarms) {
        if (alarm.bit == bit) {
            return texts(alarm.text);
        }
    }
    return {};
}

std::string alarmNames(const Texts& texts, WorkKind kind, std::uint32_t alarms) {
    constexpr int kBits = 32;
    std::string names;
    for (int bit = 0; bit < kBits; ++bit) {
        const std::string_view name = alarmText(texts, kind, bit);
        if (((alarms >> static_cast<unsigned>(bit)) & 1U) != 0 && !name.empty()) {
            names.append(names.empty() ? "" : "; ").append(name);
        }
    }
    return names;
}

std::uint32_t knownAlarms(WorkKind kind) {
    return kind == WorkKind::Sprayer ? kSprayerBits : kSeederBits;
}

}  // namespace campora
