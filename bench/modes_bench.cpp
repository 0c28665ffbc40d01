// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What the user waits for after a change of colouring mode: new classes, error areas and a redraw
// of the whole map on the canvas that the window shows, 1200 x 900 pixels.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

#include "app/session.h"
#include "field.h"
#include "paint/raster_canvas.h"
#include "platform/quiet_dialogs.h"
#include "support/scripted_platform.h"
#include "support/scripted_window.h"
#include "support/temp_folder.h"
#include "support/work_files.h"

namespace campora {

namespace {

struct NoSettings : SettingsStore {
    [[nodiscard]] std::optional<std::string> read(std::string_view) const override { return {}; }
    void write(std::string_view, std::string_view) override {}
};

/// A report of the field over five days.
std::string reportBytes(std::size_t steps) {
    const GphTrack track = fieldTrack(steps, false);
    RptBytes bytes(1);
    bytes.reserve(track.points().size());
    for (std::size_t i = 0; i < track.points().size(); ++i) {
        RptBytes::Record record;
        record.position = track.points()[i];
        record.realTenths[0] = 600 + static_cast<std::int32_t>(i * 7919 % 970);
        record.swathCm = static_cast<std::int32_t>(kSwathM * 100);
        record.alarms = i % 3 == 0 ? 1U : 0U;
        record.time.date.day = 1 + static_cast<int>(5 * i / track.points().size());
        bytes.add(record);
    }
    return bytes.bytes();
}

struct OpenWork {
    explicit OpenWork(std::size_t steps)
        : session(canvas, window, {dialogs, settings, locale, clipboard, clock, classes, shell},
                  Language::English, folder.path()) {
        session.start();
        session.map().openAll({folder.write("field.rpt", reportBytes(steps))});
        session.display().showWhole();
    }

    TempFolder folder;
    RasterCanvas canvas{kCanvas};
    ScriptedWindow window;
    QuietDialogs dialogs;
    NoSettings settings;
    FixedLocale locale;
    MemoryClipboard clipboard;
    ScriptedShell shell;
    ScriptedClock clock;
    MemoryClasses classes;
    Session session;
};

void changeMode(benchmark::State& state, void (*change)(Session&), int channel) {
    OpenWork work(static_cast<std::size_t>(state.range(0)));
    if (channel >= 0) {
        work.session.colours().modes.mnuColorScaleSelCH(channel);
    }
    for (auto _ : state) {
        change(work.session);
    }
    benchmark::DoNotOptimize(work.canvas.image().constBits());
}

#define CAMPORA_MODE(name, command, channel)                                                       \
    BENCHMARK_CAPTURE(                                                                             \
        changeMode, name, [](Session& session) { session.command(); }, channel)                    \
        ->Arg(100000)                                                                              \
        ->Unit(benchmark::kMillisecond)

CAMPORA_MODE(alarmMap, colours().modes.mnuAlarmsPaint, -1);
CAMPORA_MODE(dateMap, colours().modes.mnuColorDateMap, -1);
CAMPORA_MODE(errorMapOfTotal, colours().modes.mnuColorErrorMap, -1);
CAMPORA_MODE(errorMapOfChannel, colours().modes.mnuColorErrorMap, 0);
CAMPORA_MODE(graduated, colours().modes.mnuEditGraduated, -1);
CAMPORA_MODE(byMinute, colours().modes.mnuEditGraduatedByLtsMin, -1);
CAMPORA_MODE(total, colours().modes.mnuColorScaleSelTotal, -1);
CAMPORA_MODE(onlyWorked, colours().drawing.mnuEditDrawAll, -1);
CAMPORA_MODE(borders, colours().drawing.mnuEditDrawBorder, -1);

}  // namespace

}  // namespace campora
