// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The work orders of a full memory card.

#include <string>

#include <benchmark/benchmark.h>

#include "support/temp_folder.h"
#include "support/work_files.h"
#include "work/work_orders.h"

namespace campora {

namespace {

constexpr int kFiles = 1000;
constexpr std::size_t kFileBytes = 100'000;
constexpr int kFilesPerOrder = 10;

void scanCard(benchmark::State& state) {
    const TempFolder card;
    for (int i = 0; i < kFiles; ++i) {
        TrackText track;
        track.order = std::to_string(1 + i / kFilesPerOrder);
        std::string bytes = track.bytes();
        bytes.resize(kFileBytes, '0');
        card.write("log" + std::to_string(i) + ".nbr", bytes);
    }
    for (auto _ : state) {
        const std::vector<WorkOrder> orders = scanFolder(card.path(), {});
        if (orders.size() < kFiles / kFilesPerOrder) {
            state.SkipWithError("orders are missing");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * kFiles);
}

BENCHMARK(scanCard)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
