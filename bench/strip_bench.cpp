// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A job over time: how long it takes to read one, and to tell what the columns of a picture hold.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "findings/time_series.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {

namespace {

constexpr int kPerPass = 1000;
constexpr std::size_t kColumns = 1300;

/// Passes of `kPerPass` records, one a second, with half a minute between two passes.
struct TimedJob {
    explicit TimedJob(int records) {
        for (int i = 0; i < records; ++i) {
            if (i % kPerPass == 0) {
                tracks.push_back(std::make_unique<GphTrack>());
                passes.push_back(tracks.back().get());
            }
            TrackDataRPT::Fields fields = reportFields(60 + i * 7 % 97);
            const int second = i + i / kPerPass * 30;
            const int inDay = second % 86'400;
            fields.date = Date{2018, 3, 1 + second / 86'400};
            fields.time = {inDay / 3600, inDay / 60 % 60, inDay % 60};
            fields.speed = 15 + static_cast<float>(i % 7);
            const LonLat at = atMetres(4.0 * (i % kPerPass), 20.0 * (i / kPerPass % 100));
            tracks.back()->addPoint(at.x, at.y, TrackDataRPT(fields));
        }
    }
    std::vector<std::unique_ptr<GphTrack>> tracks;
    std::vector<const WorkLayer*> passes;
};

void seriesBuild(benchmark::State& state) {
    const TimedJob job(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const TimeSeries series(job.passes);
        benchmark::DoNotOptimize(series.size());
    }
}
BENCHMARK(seriesBuild)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

/// Windows at random places, from a minute to all of the job.
void seriesColumns(benchmark::State& state) {
    const TimedJob job(static_cast<int>(state.range(0)));
    const TimeSeries series(job.passes);
    std::mt19937 random(1);
    const double begin = series.positionOf(0);
    const double whole = series.positionOf(series.size() - 1) - begin;
    std::uniform_real_distribution<double> part(0, 1);
    std::vector<SeriesColumn> columns(kColumns);
    for (auto _ : state) {
        const double shown = 60 * std::pow(whole / 60, part(random));
        const double from = begin + part(random) * (whole - shown);
        series.columns(from, from + shown, columns);
        benchmark::DoNotOptimize(columns.data());
    }
}
BENCHMARK(seriesColumns)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

/// Of a random stretch, as while it is dragged.
void seriesTotals(benchmark::State& state) {
    const TimedJob job(1'000'000);
    const TimeSeries series(job.passes);
    std::mt19937 random(1);
    for (auto _ : state) {
        const std::size_t a = random() % series.size();
        const std::size_t b = random() % series.size();
        benchmark::DoNotOptimize(series.totals(std::min(a, b), std::max(a, b)));
    }
}
BENCHMARK(seriesTotals)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace campora
