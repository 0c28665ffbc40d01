// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A job of many steps set against a grid and against a map of zones, and the net ground by which it
// is judged.

#include "findings/compare.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "app/findings/column_doses.h"
#include "field.h"
#include "platform/quiet_dialogs.h"
#include "presc/gph_pre.h"
#include "support/scripted_platform.h"
#include "support/zone_map.h"

namespace campora {

namespace {

constexpr std::int64_t kSteps = 100'000;
constexpr std::int64_t kMoreSteps = 1'000'000;

/// A corner of the ground of every job here.
LonLat cornerOf(const GphTrack& track) {
    constexpr double kMargin = 0.001;
    return {track.Gph_bound().minX - kMargin, track.Gph_bound().minY - kMargin};
}

/// Cells of 25 m over the ground of a job.
GphPRE gridOver(const GphTrack& track) {
    constexpr int kCell = 25;
    constexpr double kMinutes = 60;
    PreGrid grid;
    PreHeader& header = grid.header;
    const LonLat west = cornerOf(track);
    const BoundingBox& bound = track.Gph_bound();
    header.longitude = encodePreCoordinate(west.x);
    header.latitude = encodePreCoordinate(bound.maxY);
    header.cellSize = kCell;
    header.metresPerMinuteOfLatitude =
        static_cast<std::int16_t>(std::lround(METERS_PER_DEGREE / kMinutes));
    header.metresPerMinuteOfLongitude =
        static_cast<std::int16_t>(std::lround(metresPerDegreeEast(bound.maxY) / kMinutes));
    header.columns = static_cast<std::int16_t>(bound.widthM / kCell + 10);
    header.rows = static_cast<std::int16_t>(bound.heightM / kCell + 10);
    const auto cells = std::int64_t{header.columns} * header.rows;
    for (std::int64_t i = 0; i < cells; ++i) {
        grid.doses.push_back(static_cast<std::int16_t>(80 + i * 7919 % 41));
    }
    return {"plan.pre", std::move(grid), Color{}, '.'};
}

/// Square zones of about a hectare over the ground of a job.
std::string writeZones(const GphTrack& track, const TempFolder& folder) {
    constexpr double kSide = 0.001;
    ZoneMap map;
    map.columns = {"DOSIS"};
    const LonLat corner = cornerOf(track);
    for (double y = corner.y; y < track.Gph_bound().maxY; y += kSide) {
        for (double x = corner.x; x < track.Gph_bound().maxX; x += kSide) {
            const std::size_t dose = 80 + map.zones.size() * 7919 % 41;
            map.zones.push_back({{squareAt({x, y}, kSide)}, {std::to_string(dose)}});
        }
    }
    return map.write(folder, "lote");
}

void measure(benchmark::State& state, const GphTrack& track, const DoseSource& source) {
    const NetWork work({&track});
    const auto channels = channelPairs(work.layers(), source, {});
    for (auto _ : state) {
        const Comparison whole = compareDoses(work, source, channels, kUsualLimit);
        state.counters["doses"] = static_cast<double>(whole.channels.at(0).doses.size());
        state.counters["netHa"] = whole.channels.at(0).netHa;
    }
}

void compareWithGrid(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    measure(state, track, gridOver(track));
}
BENCHMARK(compareWithGrid)->Arg(kSteps)->Arg(kMoreSteps)->Unit(benchmark::kMillisecond);

void compareWithZones(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    const TempFolder folder;
    QuietDialogs dialogs;
    GphPresc zones;
    if (!zones.loadFromFile(writeZones(track, folder), {dialogs, Texts(), FixedLocale()})) {
        state.SkipWithError("the zones cannot be read");
        return;
    }
    measure(state, track, ColumnDoses(zones, 1));
}
BENCHMARK(compareWithZones)->Arg(kSteps)->Arg(kMoreSteps)->Unit(benchmark::kMillisecond);

/// The ground of the steps, and the look whether it is still theirs.
void countNetGround(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    for (auto _ : state) {
        benchmark::DoNotOptimize(NetWork({&track}).hectares().data());
    }
}
BENCHMARK(countNetGround)->Arg(kSteps)->Arg(kMoreSteps)->Unit(benchmark::kMillisecond);

void lookWhetherChanged(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    const NetWork work({&track});
    for (auto _ : state) {
        benchmark::DoNotOptimize(work.isCurrent());
    }
}
BENCHMARK(lookWhetherChanged)->Arg(kSteps)->Arg(kMoreSteps)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
