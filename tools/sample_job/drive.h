// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "base/dates.h"
#include "sample_job/job.h"
#include "sample_job/plane.h"
#include "sample_job/route.h"

namespace campora::sample {

/// Round part of a field where another dose is prescribed for one channel; of zones that overlap
/// the last one counts.
struct DoseZone {
    Place centre;
    double radius = 0;
    std::array<int, kMaxChannels> dose{};  ///< per hectare
};

/// Something that goes wrong while the machine works inside a box.
struct Incident {
    Box box;
    int pass = 0;  ///< the pass it happens on
    std::uint32_t alarms = 0;
    /// What is left of each channel's dose: 1 for all of it, 0 for nothing.
    std::array<double, kMaxChannels> factor{1, 1};
};

/// A machine whose rate controller follows the speed late and within the limits of its nozzles.
struct Machine {
    std::array<int, kMaxChannels> dose{};  ///< prescribed, per hectare; 0 for a channel not there
    /// Speeds between which the dose can be held, km/h; beyond them the flow stays at its limit.
    double leastKmh = 0;
    double mostKmh = 0;
    double lagSeconds = 0;    ///< time constant of the flow
    double openingFlow = 1;   ///< part of the wanted flow in the moment of opening
    double doseNoise = 0;     ///< fraction of the dose by which it wanders to both sides
    double speedNoise = 0;    ///< fraction of the speed
    double fastAlarmKmh = 0;  ///< the speed alarm is on above it
    std::uint32_t fastAlarm = 0;
    std::uint32_t leastFlowAlarm = 0;  ///< on when the speed is well below the least
    std::uint32_t mostFlowAlarm = 0;   ///< on when it is well above the most
};

/// The machine stands still from the middle of the turn that leads to `beforePass`.
struct Pause {
    int beforePass = 0;
    int minutes = 0;
};

/// Where on Earth a field lies: its origin and how far its x axis is turned from east to north.
struct Georeference {
    std::int32_t lonMicro = 0;
    std::int32_t latMicro = 0;
    double cosLatitude = 1;
    Place xAxis{1, 0};  ///< (east, north), of length 1
};

struct Drive {
    Route route;
    Machine machine;
    Georeference place;
    std::vector<DoseZone> doseZones;
    std::vector<Incident> incidents;
    std::vector<Pause> pauses;
    DateTime start;
    std::uint64_t seed = 0;
};

/// What the console logs on the drive: a record every ten metres or so, at every bend, and where
/// the machine or an alarm goes on or off. Doses and speed are what the console shows: a value
/// stands until the measured one has left it clearly.
[[nodiscard]] std::vector<JobRecord> logDrive(const Drive& drive);

}  // namespace campora::sample
