// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The two small operations that run once for every point of every file.

#include <cstddef>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "base/lon_lat.h"
#include "colour/color_scale.h"
#include "model/bounding_box.h"

namespace campora {

namespace {

constexpr std::size_t kValues = 4096;

void boxAddPoint(benchmark::State& state) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> spread(0, 0.02);
    std::vector<LonLat> points(kValues);
    for (LonLat& point : points) {
        point = {-61.5 + spread(random), -33.2 + spread(random)};
    }
    BoundingBox box;
    std::size_t i = 0;
    for (auto _ : state) {
        const LonLat& point = points[i++ % kValues];
        box.addPoint(point.x, point.y);
        benchmark::DoNotOptimize(box);
    }
}
BENCHMARK(boxAddPoint);

void scaleGetColor(benchmark::State& state) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> spread(-10, 110);
    std::vector<double> values(kValues);
    for (double& value : values) {
        value = spread(random);
    }
    ColorScale scale;
    scale.setClassNumber(static_cast<int>(state.range(0)));
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(scale.getColor(values[i++ % kValues]));
    }
}
BENCHMARK(scaleGetColor)->Arg(5)->Arg(16);

}  // namespace

}  // namespace campora
