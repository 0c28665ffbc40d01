// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A real spread map of 22,439 zones: opening, colouring, drawing it, at 1200 x 900 pixels. Skipped
// where it is not there.

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "field.h"
#include "paint/raster_canvas.h"
#include "platform/quiet_dialogs.h"
#include "presc/gph_presc.h"
#include "support/scripted_platform.h"
#include "support/shared_samples.h"
#include "support/zone_map.h"

namespace campora {

namespace {

constexpr const char* kMap = "samples/presc/spreadmap.shp";
constexpr int kZoneColumn = 1;

bool load(GphPresc& presc, benchmark::State& state) {
    const std::optional<std::string> path = sharedSample(kMap);
    if (!path) {
        state.SkipWithError("the sample is not there");
        return false;
    }
    QuietDialogs dialogs;
    return presc.loadFromFile(*path, {dialogs, Texts(), FixedLocale()});
}

void openSpreadMap(benchmark::State& state) {
    for (auto _ : state) {
        GphPresc presc;
        if (!load(presc, state)) {
            return;
        }
        benchmark::DoNotOptimize(presc.Gph_count());
    }
}
BENCHMARK(openSpreadMap)->Unit(benchmark::kMillisecond);

constexpr int kColumns = 8;

/// A field of square zones, so many in all, with columns of values of which no two are the same or
/// which repeat.
std::string writeZones(const TempFolder& folder, std::int64_t zones, bool distinct) {
    constexpr std::int64_t kRow = 100;
    constexpr double kSide = 0.0001;
    ZoneMap map;
    std::mt19937 random(1);
    for (int column = 0; column < kColumns; ++column) {
        map.columns.push_back("D" + std::to_string(column));
    }
    for (std::int64_t i = 0; i < zones; ++i) {
        const LonLat at{kSide * static_cast<double>(i % kRow),
                        kSide * static_cast<double>(i / kRow)};
        std::vector<std::string> cells;
        for (int column = 0; column < kColumns; ++column) {
            cells.push_back(std::to_string(distinct ? static_cast<double>(random()) / 1000.0
                                                    : static_cast<double>(random() % 20)));
        }
        map.zones.push_back({{squareAt(at, kSide)}, std::move(cells)});
    }
    return map.write(folder, "lote");
}

void openZones(benchmark::State& state, bool distinct) {
    const TempFolder folder;
    const std::string path = writeZones(folder, state.range(0), distinct);
    QuietDialogs dialogs;
    for (auto _ : state) {
        GphPresc presc;
        benchmark::DoNotOptimize(presc.loadFromFile(path, {dialogs, Texts(), FixedLocale()}));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK_CAPTURE(openZones, repeats, false)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openZones, distinct, true)
    ->RangeMultiplier(10)
    ->Range(10000, 100000)
    ->Unit(benchmark::kMillisecond);

void chooseDoseColumn(benchmark::State& state) {
    GphPresc presc;
    if (!load(presc, state)) {
        return;
    }
    for (auto _ : state) {
        presc.setColumnaDosis(kZoneColumn);
    }
}
BENCHMARK(chooseDoseColumn)->Unit(benchmark::kMillisecond);

void redrawSpreadMap(benchmark::State& state) {
    GphPresc presc;
    if (!load(presc, state)) {
        return;
    }
    presc.setColumnaDosis(kZoneColumn);
    const MapStyle style;
    const ViewTransform view = wholeView(presc.Gph_bound());
    RasterCanvas canvas(kCanvas);
    MapContext context{canvas, view, style};
    for (auto _ : state) {
        canvas.clear();
        presc.Gph_plot(context);
    }
    benchmark::DoNotOptimize(canvas.image().constBits());
}
BENCHMARK(redrawSpreadMap)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
