// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What an element of a replay costs on the canvas that the window shows, without waiting between
// elements, and what a click for information costs on a large track.

#include "app/map/replay.h"

#include <memory>
#include <vector>

#include <benchmark/benchmark.h>

#include "app/map_display.h"
#include "colour/color_scale.h"
#include "field.h"
#include "model/file_gph_group.h"
#include "paint/raster_canvas.h"
#include "platform/quiet_dialogs.h"
#include "support/scripted_platform.h"
#include "support/scripted_window.h"

namespace campora {

namespace {

/// A field shown whole in a window that does nothing.
struct OpenWork {
    explicit OpenWork(std::size_t steps) {
        auto group = std::make_unique<FileGphGroup>();
        group->addGph(std::make_unique<GphTrack>(fieldTrack(steps, false)));
        map.addFile(std::move(group), false);
        display.showWhole();
    }

    GphTrack& track() { return *dynamic_cast<GphTrack*>(map.getGphList().front()); }

    RasterCanvas canvas{kCanvas};
    ScriptedWindow window;
    ScriptedClock clock;
    QuietDialogs dialogs;
    Texts texts;
    FixedLocale locale;
    OpenMap map{{dialogs, texts, locale}, ""};
    MapDisplay display{map, canvas, window};
};

void replayElements(benchmark::State& state) {
    OpenWork work(static_cast<std::size_t>(state.range(0)));
    Replay replay(work.map, work.display, work.clock, [] {});
    replay.prepareReplay();
    replay.setSpeed(0);
    replay.setSpeedShown(true);
    for (auto _ : state) {
        replay.play();
    }
    state.SetItemsProcessed(state.iterations() * work.track().Gph_count());
}
BENCHMARK(replayElements)->Arg(100000)->Unit(benchmark::kMillisecond);

/// The last place at which a click finds something, so that every step is looked at.
void askAtTheEnd(benchmark::State& state) {
    OpenWork work(static_cast<std::size_t>(state.range(0)));
    const ViewTransform view = work.display.view().transform();
    const LonLat last = work.track().points()[work.track().points().size() - 2];
    for (auto _ : state) {
        benchmark::DoNotOptimize(work.track().Gph_mouseOver(view, work.map.style(), last, 0));
    }
}
BENCHMARK(askAtTheEnd)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
