// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What writing a job costs in every format, and how much memory it takes beside the job itself.

#include <cstddef>
#include <fstream>
#include <optional>
#include <string>

#include <benchmark/benchmark.h>

#ifndef _WIN32
#include <sys/resource.h>
#endif

#include "base/failure.h"
#include "export/geojson_export.h"
#include "export/kml_export.h"
#include "export/shp_export.h"
#include "export/txt_export.h"
#include "field.h"
#include "platform/quiet_dialogs.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {

namespace {

/// The most memory that the process has held so far; 0 where the system does not tell.
double peakMegabytes() {
#ifdef _WIN32
    return 0;
#else
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
#endif
}

/// The most memory counts anew from here on, where the system can do that.
void forgetPeak() {
    std::ofstream("/proc/self/clear_refs") << '5';
}

/// `write(layers, path without ending, progress)` for a job of as many points as the benchmark's
/// argument.
template <typename Write>
void exportJob(benchmark::State& state, const Write& write) {
    GphTrack track = fieldTrack(static_cast<std::size_t>(state.range(0)) - 1, false);
    Gph* const layers[] = {&track};
    NoProgress shown;
    ExportProgress progress(shown);
    const TempFolder folder;
    forgetPeak();
    const double before = peakMegabytes();
    for (auto _ : state) {
        if (const std::optional<Failure> failure = write(layers, folder.file("job"), progress)) {
            state.SkipWithError("the export failed");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["more_MB"] = peakMegabytes() - before;
}

void exportAsPolygons(benchmark::State& state) {
    exportJob(state,
              [](std::span<Gph* const> layers, const std::string& base, ExportProgress& progress) {
                  return exportShpPolygons(layers, base, MapStyle(), progress);
              });
}

void exportAsPoints(benchmark::State& state) {
    exportJob(state,
              [](std::span<Gph* const> layers, const std::string& base, ExportProgress& progress) {
                  return exportShpPoints(layers, base, progress);
              });
}

void exportForGis(benchmark::State& state) {
    exportJob(state,
              [](std::span<Gph* const> layers, const std::string& base, ExportProgress& progress) {
                  return exportShpGis(layers, base, {MapStyle()}, {2026, 3, 5}, progress);
              });
}

void exportAsGeoJson(benchmark::State& state) {
    exportJob(state,
              [](std::span<Gph* const> layers, const std::string& base, ExportProgress& progress) {
                  return exportGeoJson(layers, base + ".geojson", {MapStyle()}, progress);
              });
}

void exportAsKml(benchmark::State& state) {
    exportJob(state, [](std::span<Gph* const> layers, const std::string& base,
                        ExportProgress& progress) {
        return kmlExport(layers, base + ".kml", CAMPORA_SOURCE_DIR "/data", MapStyle(), progress);
    });
}

void exportAsText(benchmark::State& state) {
    exportJob(state,
              [](std::span<Gph* const> layers, const std::string& base, ExportProgress& progress) {
                  return txtExport(layers, base + ".txt", {}, FixedLocale(), progress);
              });
}

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(exportAsPolygons)->Apply(sizes);
BENCHMARK(exportAsPoints)->Apply(sizes);
BENCHMARK(exportForGis)->Apply(sizes);
BENCHMARK(exportAsGeoJson)->Apply(sizes);
BENCHMARK(exportAsKml)->Apply(sizes);
BENCHMARK(exportAsText)->Apply(sizes);

}  // namespace

}  // namespace campora
