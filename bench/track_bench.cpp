// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What a track costs beside the painting itself: the canvas here throws everything away.

#include <cstddef>

#include <benchmark/benchmark.h>

#include "colour/color_scale.h"
#include "field.h"
#include "work/gph_track.h"

namespace campora {

namespace {

/// Keeps the compiler from leaving the drawing out, and nothing else.
class NullCanvas : public MapCanvas {
public:
    [[nodiscard]] CanvasSize size() const override { return kCanvas; }
    void clear() override {}
    void setBackgroundColor(Color) override {}
    [[nodiscard]] Color backgroundColor() const override { return {}; }
    void setPenColor(Color) override {}
    [[nodiscard]] Color penColor() const override { return {}; }
    void setPenWidth(int) override {}
    void setPenStyle(PenStyle) override {}
    [[nodiscard]] PenStyle penStyle() const override { return PenStyle::Solid; }
    void setFillColor(Color color) override { benchmark::DoNotOptimize(color); }
    void setFillStyle(FillStyle) override {}
    void line(CanvasPoint, CanvasPoint, Color) override {}
    void rectangle(CanvasPoint, CanvasPoint, Color, RectangleStyle) override {}
    void point(CanvasPoint, Color) override {}
    void polygon(std::span<const CanvasPoint> ring) override {
        benchmark::DoNotOptimize(ring.data());
        points += ring.size();
    }
    void polyPolygon(std::span<const std::span<const CanvasPoint>>) override {}
    void text(CanvasPoint, std::string_view, TextAnchor, bool) override {}
    [[nodiscard]] CanvasSize textSize(std::string_view, bool) const override { return {}; }
    void paintPicture(MapPicture, CanvasPoint, CanvasSize) override {}
    [[nodiscard]] Picture picture() const override { return {}; }
    void takeSnapshot() override {}
    void paintSnapshot(CanvasPoint, double) override {}
    void refresh() override {}
    void setPointer(PointerShape) override {}

    std::size_t points = 0;
};

void plotTrack(benchmark::State& state, const GphTrack& track, const ViewTransform& view) {
    const ColorScale scale;
    MapStyle style;
    style.scale = &scale;
    NullCanvas canvas;
    MapContext context{canvas, view, style};
    for (auto _ : state) {
        track.Gph_plot(context);
    }
    state.SetItemsProcessed(state.iterations() * track.Gph_count());
    state.counters["points/plot"] =
        static_cast<double>(canvas.points) / static_cast<double>(state.iterations());
}

void plotDifferingDoses(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    plotTrack(state, track, wholeView(track.Gph_bound()));
}
BENCHMARK(plotDifferingDoses)
    ->RangeMultiplier(10)
    ->Range(10000, 1000000)
    ->Unit(benchmark::kMillisecond);

void plotOneDose(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), true);
    plotTrack(state, track, wholeView(track.Gph_bound()));
}
BENCHMARK(plotOneDose)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);

void plotCorner(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    plotTrack(state, track, cornerView());
}
BENCHMARK(plotCorner)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);

/// The pointer on the last row: every step before it is looked at.
void hoverLastRow(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    const ViewTransform view = wholeView(track.Gph_bound());
    const LonLat position = track.points()[track.points().size() - kRowSteps / 2];
    for (auto _ : state) {
        benchmark::DoNotOptimize(track.Gph_mouseOver(view, MapStyle(), position, 0));
    }
    state.SetItemsProcessed(state.iterations() * track.Gph_count());
}
BENCHMARK(hoverLastRow)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
