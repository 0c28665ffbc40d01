// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What the index of a map costs: zones of a few metres that cover a field without gaps, as a spread
// map has them.

#include <cmath>
#include <cstdint>
#include <memory>
#include <random>

#include <benchmark/benchmark.h>

#include "rtree/r2_tree.h"

namespace campora {

namespace {

constexpr std::int32_t kSide = 600;  // of a zone, 1e-7 degrees

std::unique_ptr<R2Tree> zones(std::int64_t count) {
    auto tree = std::make_unique<R2Tree>();
    const auto columns = static_cast<std::int32_t>(std::sqrt(static_cast<double>(count)));
    std::mt19937 random(1);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i) {
        const std::int32_t x = i % columns * kSide;
        const std::int32_t y = i / columns * kSide;
        const auto grown = static_cast<std::int32_t>(random() % kSide);
        tree->Insert(x, y, x + kSide + grown, y + kSide + grown, i);
    }
    return tree;
}

void insertZones(benchmark::State& state) {
    for (auto _ : state) {
        const auto tree = zones(state.range(0));
        benchmark::DoNotOptimize(tree.get());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(insertZones)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

void findPoint(benchmark::State& state) {
    const auto tree = zones(state.range(0));
    std::mt19937 random(2);
    for (auto _ : state) {
        const auto x = static_cast<std::int32_t>(random() % static_cast<unsigned>(tree->MaxX()));
        const auto y = static_cast<std::int32_t>(random() % static_cast<unsigned>(tree->MaxY()));
        benchmark::DoNotOptimize(tree->Find(x, x, y, y, R2Tree::kOverlapping)->entries.data());
    }
}
BENCHMARK(findPoint)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kNanosecond);

}  // namespace

}  // namespace campora
