// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A real spread map of 22,439 zones: opening, colouring, drawing it, at 1200 x 900 pixels. Skipped
// where it is not there.

#include <optional>
#include <string>

#include <benchmark/benchmark.h>

#include "field.h"
#include "paint/raster_canvas.h"
#include "platform/quiet_dialogs.h"
#include "presc/gph_presc.h"
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
    return presc.loadFromFile(*path, dialogs, Texts());
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

/// A field of square zones, so many in all.
void openZones(benchmark::State& state) {
    constexpr int kRow = 100;
    constexpr double kSide = 0.0001;
    ZoneMap map{{"DOSIS"}, {}};
    for (int i = 0; i < state.range(0); ++i) {
        map.zones.push_back({{squareAt({kSide * (i % kRow), kSide * (i / kRow)}, kSide)},
                             {std::to_string(i % 20)}});
    }
    const TempFolder folder;
    const std::string path = map.write(folder, "lote");
    QuietDialogs dialogs;
    for (auto _ : state) {
        GphPresc presc;
        benchmark::DoNotOptimize(presc.loadFromFile(path, dialogs, Texts()));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(openZones)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

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
