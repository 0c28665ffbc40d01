// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What a track costs beside the painting itself: the canvas here throws everything away.

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <benchmark/benchmark.h>

#include "colour/color_scale.h"
#include "model/geodesy.h"
#include "work/gph_track.h"

namespace campora {

namespace {

constexpr CanvasSize kCanvas{1200 * 15, 900 * 15};
constexpr LonLat kCorner{-61.5, -33.2};  // of the field
constexpr std::size_t kRowSteps = 1000;
constexpr double kStepM = 4;
constexpr float kSwathM = 20;

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
    void text(CanvasPoint, std::string_view, TextAnchor, bool) override {}
    [[nodiscard]] CanvasSize textSize(std::string_view, bool) const override { return {}; }
    void paintPicture(MapPicture, CanvasPoint, CanvasSize) override {}
    void refresh() override {}
    void setPointer(PointerShape) override {}

    std::size_t points = 0;
};

/// Up and down a field in one go: rows of `kRowSteps` steps, `kSwathM` apart, that weave a little.
GphTrack fieldTrack(std::size_t steps, bool oneDose) {
    GphTrack track;
    track.reserve(steps + 1);
    const double perMetreX = 1 / (METERS_PER_DEGREE * std::cos(toRadians(kCorner.y)));
    for (std::size_t i = 0; i <= steps; ++i) {
        const std::size_t row = i / kRowSteps;
        const std::size_t along = row % 2 == 0 ? i % kRowSteps : kRowSteps - 1 - i % kRowSteps;
        const double weave = 0.3 * std::sin(static_cast<double>(i) / 7);
        TrackDataRPT::Fields fields;
        fields.real[0] = oneDose ? 100 : 60 + static_cast<std::int32_t>(i * 7919 % 97);
        fields.spec[0] = 100;
        fields.swath = kSwathM;
        fields.kind = WorkKind::Sprayer;
        track.addPoint(kCorner.x + static_cast<double>(along) * kStepM * perMetreX,
                       kCorner.y + (static_cast<double>(row) * kSwathM + weave) / METERS_PER_DEGREE,
                       TrackDataRPT(fields));
    }
    return track;
}

/// The whole box of the track on the canvas.
ViewTransform wholeView(const BoundingBox& box) {
    const double scale = std::max(box.widthM / kCanvas.width, box.heightM / kCanvas.height);
    return {static_cast<float>(scale), static_cast<float>(scale), {box.minX, box.minY}, kCanvas};
}

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

/// At the finest scale, with the lower edge of the field near the top of the canvas: about a
/// thousand steps of the first rows are in view.
void plotCorner(benchmark::State& state) {
    const GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)), false);
    constexpr float kFinestScale = 0.1F;
    constexpr double kFieldSeenM = 10;
    const double belowM = kCanvas.height * kFinestScale - kFieldSeenM;
    const LonLat below{kCorner.x, kCorner.y - belowM / METERS_PER_DEGREE};
    plotTrack(state, track, ViewTransform(kFinestScale, kFinestScale, below, kCanvas));
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
