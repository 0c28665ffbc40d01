// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Prescriptions of 480 x 480 cells with four channels: made of the real spread map (where it is
// there) or of squares, opened, and drawn whole at 1200 x 900 pixels.

#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "field.h"
#include "paint/raster_canvas.h"
#include "platform/quiet_dialogs.h"
#include "presc/generation.h"
#include "presc/gph_pre.h"
#include "presc/layer_zones.h"
#include "presc/load_grid.h"
#include "presc/zone_raster.h"
#include "support/scripted_platform.h"
#include "support/shared_samples.h"
#include "support/temp_folder.h"
#include "support/zone_layers.h"

namespace campora {

namespace {

constexpr int kAcross = 480;
constexpr int kChannels = 4;

/// A map with doses, and what generation sees of it.
struct Map {
    Map() {
        QuietDialogs dialogs;
        const auto path = sharedSample("samples/presc/spreadmap.shp");
        if (path && presc.loadFromFile(*path, {dialogs, Texts(), FixedLocale()})) {
            presc.setColumnaDosis(3);
            zones = zonesOf(presc);
            return;
        }
        for (int i = 0; i < 22'439; ++i) {
            const double x = -60 + 1e-4 * (i % 150);
            const double y = -33 + 1e-4 * (i / 150);
            squares.add(static_cast<float>(i % 19), {rectangleRing(x, y, x + 1e-4, y + 1e-4)});
        }
        zones = squares.channel();
    }

    GphPresc presc;
    ZoneLayer squares;
    ChannelZones zones;
};

/// The largest whole number of metres that makes at least 480 x 480 cells. One side is longer than
/// consoles take; the question about that is answered with No.
int cellSize(const BoundingBox& bound) {
    int metres = 100;
    const auto cells = [&] {
        return gridSize(bound, metres).columns * gridSize(bound, metres).rows;
    };
    while (metres > 1 && cells() < kAcross * kAcross) {
        --metres;
    }
    return metres;
}

void makePre(benchmark::State& state) {
    const Map map;
    const TempFolder folder;
    QuietDialogs dialogs;
    const std::vector<ChannelZones> channels(kChannels, map.zones);
    const int metres = cellSize(map.zones.bound);
    for (auto _ : state) {
        generatePRE(folder.file("a.pre"), metres, channels, {dialogs, Texts(), FixedLocale()});
    }
    const GridSize size = gridSize(map.zones.bound, metres);
    state.counters["cells"] = static_cast<double>(size.columns * size.rows);
}
BENCHMARK(makePre)->Unit(benchmark::kMillisecond);

/// A prescription of the largest size: the zones of the map on a grid of just that many cells.
std::string largestPre() {
    const Map map;
    const BoundingBox& bound = map.zones.bound;
    CellCentres centres;
    for (int i = 0; i < kAcross; ++i) {
        const double part = (i + 0.5) / kAcross;
        centres.x.push_back(bound.minX + part * (bound.maxX - bound.minX));
        centres.y.push_back(bound.maxY - part * (bound.maxY - bound.minY));
    }
    const auto owners = zonesUnder(map.zones, centres, [](std::size_t) { return true; });
    std::vector<std::int16_t> doses;
    for (const std::int32_t owner : *owners) {
        const float dose =
            owner == kNoZone ? 0 : map.zones.zones[static_cast<std::size_t>(owner)].dosis;
        doses.insert(doses.end(), kChannels, static_cast<std::int16_t>(dose));
    }
    return encodePre({encodePreCoordinate(bound.maxY), encodePreCoordinate(bound.minX), kAcross,
                      kAcross, 7, 1855, 1189, kChannels},
                     doses);
}

void largestRaster(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(largestPre());
    }
}
BENCHMARK(largestRaster)->Unit(benchmark::kMillisecond);

void openPre(benchmark::State& state) {
    const TempFolder folder;
    const std::string path = folder.write("a.pre", largestPre());
    QuietDialogs dialogs;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            loadGrid(path, {dialogs, Texts(), FixedLocale()}, MapColors().back));
    }
}
BENCHMARK(openPre)->Unit(benchmark::kMillisecond);

void drawPre(benchmark::State& state) {
    const TempFolder folder;
    QuietDialogs dialogs;
    const auto layer = loadGrid(folder.write("a.pre", largestPre()),
                                {dialogs, Texts(), FixedLocale()}, MapColors().back);
    RasterCanvas canvas(kCanvas);
    const BoundingBox& bound = layer->Gph_bound();
    const auto scale = static_cast<float>(bound.heightM / kCanvas.height);
    const ViewTransform view(scale, scale, {bound.minX, bound.minY}, kCanvas);
    const MapStyle style;
    for (auto _ : state) {
        MapContext context{canvas, view, style};
        layer->Gph_plot(context);
    }
    benchmark::DoNotOptimize(canvas.image().constBits());
}
BENCHMARK(drawPre)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
