// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What a job of many records shows: a million of them are asked for in under half a second.

#include <cmath>
#include <cstdint>

#include <benchmark/benchmark.h>

#include "findings/passes.h"
#include "findings/problems.h"
#include "model/geodesy.h"
#include "work/gph_track.h"

namespace campora {

namespace {

constexpr LonLat kCorner{-61.5, -33.2};
constexpr std::size_t kPassRecords = 1000;
constexpr std::size_t kTurnRecords = 12;

/// Up and down a field with turns on the headland, five records a second by a clock that counts in
/// twos; some doses are off, some missing, some records have alarms.
GphTrack drivenTrack(std::size_t records, std::uint8_t channels = 1) {
    GphTrack track;
    track.reserve(records);
    double east = 0;
    double north = 0;
    for (std::size_t i = 0; i < records; ++i) {
        const std::size_t along = i % kPassRecords;
        const bool isUp = i / kPassRecords % 2 == 0;
        const bool turns = along >= kPassRecords - kTurnRecords;
        const double angle =
            kPi * static_cast<double>(turns ? along + kTurnRecords + 1 - kPassRecords : 0) /
            static_cast<double>(kTurnRecords);
        TrackDataRPT::Fields fields;
        fields.real[0] = turns || i % 977 < 20 ? 0 : 95 + static_cast<std::int32_t>(i * 7919 % 21);
        fields.spec[0] = 100;
        fields.channels = channels;
        for (std::size_t channel = 1; channel < channels; ++channel) {
            fields.real[channel] = fields.real[0];
            fields.spec[channel] = fields.spec[0];
        }
        fields.swath = 28;
        fields.speed = 18;
        fields.alarms = i % 1009 < 40 ? 0b11 : 0;
        const auto second = static_cast<int>(i / 10 * 2);
        fields.time = {second / 3600 % 24, second / 60 % 60, second % 60};
        fields.date = Date{2025, 11, 14 + second / 86400};
        track.addPoint(kCorner.x + east / metresPerDegreeEast(kCorner.y),
                       kCorner.y + north / METERS_PER_DEGREE, TrackDataRPT(fields));
        east += std::sin(angle) * (turns ? 3.5 : 0);
        north += (isUp ? 1 : -1) * std::cos(angle);
    }
    return track;
}

void passesOfJob(benchmark::State& state) {
    const GphTrack track = drivenTrack(static_cast<std::size_t>(state.range(0)));
    const WorkLayer* const layers[] = {&track};
    std::size_t rows = 0;
    for (auto _ : state) {
        rows = findPasses(layers, {}).size();
    }
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(passesOfJob)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void problemsOfJob(benchmark::State& state) {
    const GphTrack track = drivenTrack(static_cast<std::size_t>(state.range(0)),
                                       static_cast<std::uint8_t>(state.range(1)));
    const WorkLayer* const layers[] = {&track};
    std::size_t rows = 0;
    for (auto _ : state) {
        rows = findProblems(layers, {10, -1, 0b11}).rows.size();
    }
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(problemsOfJob)
    ->ArgsProduct({{100'000, 1'000'000}, {1, 3}})
    ->ArgNames({"records", "channels"})
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
