// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Opening work files: time, and the most memory at one time beyond the file's own bytes.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <new>

#include <benchmark/benchmark.h>

#include "base/paths.h"
#include "platform/quiet_dialogs.h"
#include "support/temp_folder.h"
#include "support/work_files.h"
#include "work/work_reader.h"

namespace {

class CountingDialogs final : public campora::QuietDialogs {
public:
    int messages = 0;

    void message(std::string_view /*text*/, campora::MessageIcon /*icon*/,
                 std::string_view /*caption*/) override {
        ++messages;
    }
};

class PlainLocale final : public campora::UserLocale {
public:
    [[nodiscard]] char decimalSymbol() const override { return '.'; }
    [[nodiscard]] std::string shortDateForm() const override { return "dd/mm/yyyy"; }
    [[nodiscard]] int languageNumber() const override { return 0; }
};

/// Bytes in use now, and most at one time since the last reset. The benchmarks run on one thread.
std::size_t heapNow = 0;
std::size_t heapPeak = 0;
constexpr std::size_t kPrefix = alignof(std::max_align_t);  // room for the size before each block

}  // namespace

void* operator new(std::size_t size) {
    void* const block = std::malloc(size + kPrefix);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    *static_cast<std::size_t*>(block) = size;
    heapNow += size;
    heapPeak = std::max(heapPeak, heapNow);
    return static_cast<std::byte*>(block) + kPrefix;
}

void operator delete(void* pointer) noexcept {
    if (pointer == nullptr) {
        return;
    }
    void* const block = static_cast<std::byte*>(pointer) - kPrefix;
    heapNow -= *static_cast<std::size_t*>(block);
    std::free(block);
}

void operator delete(void* pointer, std::size_t /*size*/) noexcept {
    operator delete(pointer);
}

namespace campora {

namespace {

constexpr std::size_t kRowSteps = 1000;
constexpr double kStepM = 4;
constexpr double kRowM = 20;

/// The way of a machine that works a field in rows, there and back, with a turn at each end.
LonLat fieldPosition(std::size_t i) {
    const std::size_t row = i / kRowSteps;
    const auto along = static_cast<double>(i % kRowSteps) * kStepM;
    const double length = static_cast<double>(kRowSteps) * kStepM;
    // A little sway, so that no two steps are quite alike.
    const double sway = 0.3 * std::sin(static_cast<double>(i));
    const double x = row % 2 == 0 ? along : length - along;
    return {-61.5 + x / 92000, -33.2 - (static_cast<double>(row) * kRowM + sway) / 111320};
}

std::string reportOf(std::size_t records) {
    RptBytes report(1);
    report.reserve(records);
    for (std::size_t i = 0; i < records; ++i) {
        RptBytes::Record record;
        record.position = fieldPosition(i);
        record.realTenths[0] = 900 + static_cast<std::int32_t>(i * 7 % 300);
        const auto second = static_cast<int>(i % 86400);
        record.time = {{2018, 3, 1 + static_cast<int>(i / 86400)},
                       {second / 3600, second / 60 % 60, second % 60}};
        report.add(record);
    }
    return report.bytes();
}

std::string trackOf(std::size_t lines) {
    TrackText track;
    track.version = "2.0";
    track.west = "61.6";
    track.south = "33.1";
    for (std::size_t i = 0; i < lines; ++i) {
        const LonLat position = fieldPosition(i);
        track.addPoint(static_cast<std::uint32_t>((-position.x - 61.4) * 1e6),
                       static_cast<std::uint32_t>((-position.y - 33.1) * 1e6),
                       static_cast<std::uint32_t>(90 + i * 7 % 30), 12);
    }
    return track.bytes();
}

using Loader = std::optional<LoadedWork> (*)(std::string_view, const WorkDesk&);

void openFile(benchmark::State& state, const char* name, std::string (*contentOf)(std::size_t),
              Loader load) {
    const auto records = static_cast<std::size_t>(state.range(0));
    const TempFolder folder;
    std::size_t fileSize = 0;
    std::string path;
    {
        const std::string content = contentOf(records);
        fileSize = content.size();
        path = folder.write(name, content);
    }
    CountingDialogs dialogs;
    const PlainLocale locale;
    const Texts texts;
    const Registrations registrations;
    std::size_t most = 0;
    for (auto _ : state) {
        const std::size_t before = heapNow;
        heapPeak = heapNow;
        std::optional<LoadedWork> work = load(path, {{dialogs, texts, locale}, registrations});
        most = std::max(most, heapPeak - before);
        if (!work || dialogs.messages != 0) {
            state.SkipWithError("the file did not open");
            break;
        }
        state.PauseTiming();
        work.reset();
        state.ResumeTiming();
    }
    state.counters["bytes/record"] =
        (static_cast<double>(most) - static_cast<double>(fileSize)) / static_cast<double>(records);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void openReport(benchmark::State& state) {
    openFile(state, "lote.rpt", reportOf, loadRptFile);
}

void openTrackFile(benchmark::State& state) {
    openFile(state, "log0001.nbr", trackOf, loadTrackFile);
}

BENCHMARK(openReport)->RangeMultiplier(10)->Range(10'000, 1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(openTrackFile)
    ->RangeMultiplier(10)
    ->Range(10'000, 1'000'000)
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
