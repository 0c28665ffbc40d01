// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "sample_job/sample_jobs.h"

#include <array>
#include <cstdint>

#include "sample_job/drive.h"
#include "sample_job/route.h"

namespace campora::sample {

namespace {

/// Bits of the alarm word of sprayers.
namespace spray_alarm {
constexpr std::uint32_t kMostPressure = 1U << 0U;
constexpr std::uint32_t kLeastPressure = 1U << 1U;
constexpr std::uint32_t kSpeed = 1U << 8U;
constexpr std::uint32_t kNodeOff = 1U << 9U;
constexpr std::uint32_t kFuses = 1U << 10U;
}  // namespace spray_alarm

/// Bits of the alarm word of seeders.
namespace sow_alarm {
constexpr std::uint32_t kSeed = 1U << 0U;
constexpr std::uint32_t kFertilizer = 1U << 1U;
constexpr std::uint32_t kSpeed = 1U << 8U;
constexpr std::uint32_t kMotor1Behind = 1U << 14U;
}  // namespace sow_alarm

constexpr double kCosLatitude = 0.82806;  // of 34.1 degrees south
/// The road along both fields goes 40 m to the north over 399 m, which makes exactly 401 m.
constexpr Place kAlongTheRoad{399.0 / 401.0, 40.0 / 401.0};

/// The stream's bank is an S between its two ends.
Ring fieldByTheStream() {
    constexpr int kBankPoints = 10;
    Ring ring{{0, 0}};
    for (int i = 0; i <= kBankPoints; ++i) {
        const double t = static_cast<double>(i) / kBankPoints;
        ring.push_back({18 + 922 * t, 505 + 25 * t + 285 * t * (1 - t) * (1 - 2 * t)});
    }
    ring.push_back({930, 140});
    ring.push_back({815, 0});
    return ring;
}

Obstacle pylon(double x, double y) {
    return {.at = {x, y},
            .halfAlong = 60,
            .clearAcross = 18,
            .slowAlong = 26,
            .slowAcross = 30,
            .kmh = 7};
}

FieldPlan sprayingPlan() {
    FieldPlan plan;
    plan.ring = fieldByTheStream();
    plan.swath = 28;
    plan.headlandRounds = 2;
    plan.passKmh = 18;
    plan.headlandKmh = 15;
    plan.cornerKmh = 10.5;
    plan.turnKmh = 10;
    const Obstacle pond{.at = {585, 238},
                        .halfAlong = 130,
                        .clearAcross = 46,
                        .slowAlong = 75,
                        .slowAcross = 58,
                        .kmh = 8.6};
    plan.obstacles = {pond, pylon(160, 392), pylon(395, 318), pylon(800, 190)};
    const SpeedZone softGround{{{690, 330}, {905, 425}}, 13};
    const SpeedZone inHurry{{{190, 425}, {640, 447}}, 28.5};
    plan.speedZones = {softGround, inHurry};
    return plan;
}

Machine sprayer() {
    Machine machine;
    machine.dose = {80, 0};
    machine.leastKmh = 11.5;
    machine.mostKmh = 19;
    machine.lagSeconds = 1.6;
    machine.openingFlow = 0.62;
    machine.doseNoise = 0.09;
    machine.speedNoise = 0.035;
    machine.fastAlarmKmh = 22;
    machine.fastAlarm = spray_alarm::kSpeed;
    machine.leastFlowAlarm = spray_alarm::kLeastPressure;
    machine.mostFlowAlarm = spray_alarm::kMostPressure;
    return machine;
}

FieldPlan sowingPlan() {
    FieldPlan plan;
    plan.ring = {{0, 0}, {-6, 402}, {428, 418}, {440, 0}};
    plan.swath = 14;
    plan.headlandRounds = 2;
    plan.passKmh = 7.5;
    plan.headlandKmh = 7;
    plan.cornerKmh = 5;
    plan.turnKmh = 5.5;
    plan.speedZones = {{{{120, 200}, {330, 260}}, 6}};
    return plan;
}

Machine seeder() {
    Machine machine;
    machine.dose = {75, 95};
    machine.leastKmh = 2;
    machine.mostKmh = 9;
    machine.lagSeconds = 0.8;
    machine.openingFlow = 0.8;
    machine.doseNoise = 0.05;
    machine.speedNoise = 0.04;
    machine.fastAlarmKmh = 7.9;
    machine.fastAlarm = sow_alarm::kSpeed;
    return machine;
}

}  // namespace

Job sprayingJob() {
    Drive drive;
    drive.route = planRoute(sprayingPlan());
    drive.machine = sprayer();
    drive.place = {-61'912'400, -34'105'700, kCosLatitude, kAlongTheRoad};
    drive.incidents = {
        {{{470, 130}, {690, 190}}, 4, spray_alarm::kNodeOff, {0, 0}},
        {{{640, 190}, {690, 240}}, 6, spray_alarm::kFuses, {1, 1}},
    };
    drive.pauses = {{7, 75}};
    drive.start = {{2025, 11, 14}, {11, 24, 0}};
    drive.seed = 20251114;

    Job job;
    job.title = "Lote 4, parte de pulverización";
    job.serial = "7C-003512";
    job.serialFirst = 0x6001;
    job.serialSecond = 0x00003512;
    job.versions = 0x12042107;
    job.swathCm = 2800;
    job.order = 42;
    job.records = logDrive(drive);
    return job;
}

Job sowingJob() {
    Drive drive;
    drive.route = planRoute(sowingPlan());
    drive.machine = seeder();
    drive.place = {-61'902'000, -34'104'850, kCosLatitude, kAlongTheRoad};
    const std::array<int, kMaxChannels> onShallowGround{60, 60};
    const std::array<int, kMaxChannels> inTheHollow{90, 130};
    drive.doseZones = {{{60, 330}, 120, onShallowGround},
                       {{170, 400}, 90, onShallowGround},
                       {{350, 120}, 110, inTheHollow},
                       {{430, 230}, 90, inTheHollow}};
    drive.incidents = {
        {{{90, 0}, {125, 420}}, 9, sow_alarm::kSeed, {0.72, 1}},
        {{{300, 0}, {350, 420}}, 15, sow_alarm::kFertilizer, {1, 0.35}},
        {{{40, 0}, {60, 420}}, 20, sow_alarm::kMotor1Behind, {0.85, 1}},
    };
    drive.pauses = {{13, 40}};
    drive.start = {{2025, 11, 6}, {8, 20, 0}};
    drive.seed = 20251106;

    Job job;
    job.title = "Lote 5, siembra";
    job.serial = "5B-000917";
    job.serialFirst = 0x2104;
    job.serialSecond = 0x00000917;
    job.versions = 0x11001307;
    job.channels = 2;
    job.swathCm = 1400;
    job.records = logDrive(drive);
    return job;
}

}  // namespace campora::sample
