// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/dates.h"

namespace campora::sample {

inline constexpr int kMaxChannels = 2;

/// What the console logs at one moment, in the whole numbers that its files hold.
struct JobRecord {
    std::int32_t lonMicro = 0;             ///< millionths of a degree, east positive
    std::int32_t latMicro = 0;             ///< millionths of a degree, north positive
    std::array<int, kMaxChannels> real{};  ///< per hectare; 0 while the machine is off
    std::array<int, kMaxChannels> spec{};  ///< per hectare
    std::int32_t speedTenths = 0;          ///< tenths of a km/h
    std::uint32_t alarms = 0;
    DateTime time;  ///< even seconds
    int pass = 0;   ///< counts up along the job
};

/// A day's work of one machine on one field.
struct Job {
    std::string title;
    std::string serial;              ///< as the logger writes it into its track files
    std::uint32_t serialFirst = 0;   ///< as the console writes it into its reports: 0x6000 and more
    std::uint32_t serialSecond = 0;  ///< for a sprayer
    std::uint32_t versions = 0;      ///< firmware in the low 16 bits, hardware in the high ones
    int channels = 1;
    int swathCm = 0;
    int order = 0;  ///< number of the work order
    std::vector<JobRecord> records;
};

}  // namespace campora::sample
