// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/coverage.h"

#include <benchmark/benchmark.h>

#include "field.h"

namespace campora {

namespace {

/// Net hectares and the gaps of a field of that many steps, 80 square metres each.
void coverSteps(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    const WorkLayer* const pass = &track;
    std::size_t cells = 0;
    for (auto _ : state) {
        const Coverage coverage = coverGround(std::span(&pass, 1), {});
        benchmark::DoNotOptimize(coverage.figures.net);
        cells = coverage.grid.tiles().size() * sizeof(CoverageGrid::Tile);
        state.counters["netHa"] = coverage.figures.net;
        state.counters["grossHa"] = coverage.figures.gross;
    }
    state.counters["gridMB"] = static_cast<double>(cells) / 1e6;
}
BENCHMARK(coverSteps)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
