// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What a full redraw costs on the canvas that the window shows, 1200 x 900 pixels.

#include <cstddef>

#include <benchmark/benchmark.h>

#include "app/map/draw_layers.h"
#include "colour/color_scale.h"
#include "field.h"
#include "paint/raster_canvas.h"
#include "work/gph_track.h"

namespace campora {

namespace {

void redraw(benchmark::State& state, const ViewTransform& view, const GphTrack& track,
            bool borders) {
    ColorScale scale;
    scale.setClassNumberExt(5, 60, 156);  // from the least to the greatest dose, as in the window
    MapStyle style;
    style.scale = &scale;
    style.drawBorders = borders;
    RasterCanvas canvas(kCanvas);
    const Gph* const layers[] = {&track};
    for (auto _ : state) {
        canvas.clear();
        drawLayers({canvas, view, style}, layers);
    }
    benchmark::DoNotOptimize(canvas.image().constBits());
    state.SetItemsProcessed(state.iterations() * track.Gph_count());
}

/// The time on the clock beside that of all processors.
void inFullAndPart(benchmark::internal::Benchmark* figure) {
    figure->RangeMultiplier(10)
        ->Range(10000, 1000000)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->MeasureProcessCPUTime();
}

void redrawWhole(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    redraw(state, wholeView(track.Gph_bound()), track, true);
}
BENCHMARK(redrawWhole)->Apply(inFullAndPart);

void redrawWholeWithoutBorders(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    redraw(state, wholeView(track.Gph_bound()), track, false);
}
BENCHMARK(redrawWholeWithoutBorders)->Apply(inFullAndPart);

/// All but about a thousand steps lie outside the canvas.
void redrawCorner(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    redraw(state, cornerView(), track, true);
}
BENCHMARK(redrawCorner)->Apply(inFullAndPart);

}  // namespace

}  // namespace campora
