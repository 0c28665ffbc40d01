// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What reading a shapefile with its table costs, record by record and cell by cell, and drawing its
// figures at 1200 x 900 pixels: maps of squares of three sizes, and the real spread map where it is
// there.

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "base/numbers.h"
#include "field.h"
#include "paint/raster_canvas.h"
#include "presc/read_figure.h"
#include "support/shape_bytes.h"
#include "support/shared_samples.h"
#include "support/temp_folder.h"

namespace campora {

namespace {

/// Squares of a metre side by side, with a table of two columns.
std::string writeSquares(const TempFolder& folder, std::int64_t count) {
    constexpr double kSide = 1e-5;
    ShapeBytes shapes(5);
    DbaseBytes table({{"DOSIS", 'N', 10}, {"NOMBRE", 'C', 40}});
    const auto columns = static_cast<std::int64_t>(std::sqrt(static_cast<double>(count)));
    for (std::int64_t i = 0; i < count; ++i) {
        const double x = -61 + static_cast<double>(i % columns) * kSide;
        const double y = -33 + static_cast<double>(i / columns) * kSide;
        shapes.addPolygon(
            {{{x, y}, {x, y + kSide}, {x + kSide, y + kSide}, {x + kSide, y}, {x, y}}});
        table.addRow({numberText(static_cast<double>(i % 97) / 2), "lote " + numberText(i)});
    }
    (void)folder.write("squares.shx", shapes.index());
    (void)folder.write("squares.dbf", table.bytes());
    return folder.write("squares.shp", shapes.bytes());
}

std::vector<GphPolygonMulti> readFigures(ShapeReader& reader) {
    std::vector<GphPolygonMulti> figures;
    figures.reserve(static_cast<std::size_t>(reader.recordCount()));
    for (reader.moveFirst(); reader.record() <= reader.recordCount(); reader.moveNext()) {
        figures.push_back(readFigure(reader));
        figures.back().color = {static_cast<std::uint32_t>(figures.size() * 7919)};
    }
    return figures;
}

double sumOfNumbers(ShapeReader& reader) {
    double sum = 0;
    for (reader.moveFirst(); reader.record() <= reader.recordCount(); reader.moveNext()) {
        for (int column = 1; column <= reader.fieldCount(); ++column) {
            sum += reader.fieldNumber(column).value_or(0);
        }
    }
    return sum;
}

/// The files alone, checked; then figures and all cells too.
void read(benchmark::State& state, const std::string& path, bool all) {
    std::int32_t records = 0;
    for (auto _ : state) {
        ShapeReader reader;
        if (reader.open(path)) {
            state.SkipWithError("not read");
            return;
        }
        records = reader.recordCount();
        if (all) {
            benchmark::DoNotOptimize(readFigures(reader).data());
            benchmark::DoNotOptimize(sumOfNumbers(reader));
        }
    }
    state.SetItemsProcessed(state.iterations() * records);
}

void openSquares(benchmark::State& state) {
    const TempFolder folder;
    read(state, writeSquares(folder, state.range(0)), false);
}
BENCHMARK(openSquares)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

void readSquares(benchmark::State& state) {
    const TempFolder folder;
    read(state, writeSquares(folder, state.range(0)), true);
}
BENCHMARK(readSquares)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

void drawSquares(benchmark::State& state) {
    const TempFolder folder;
    ShapeReader reader;
    if (reader.open(writeSquares(folder, state.range(0)))) {
        state.SkipWithError("not read");
        return;
    }
    const std::vector<GphPolygonMulti> figures = readFigures(reader);
    BoundingBox bound;
    for (const GphPolygonMulti& figure : figures) {
        bound.addGph(figure);
    }
    RasterCanvas canvas(kCanvas);
    const MapStyle style;
    const ViewTransform view = wholeView(bound);
    MapContext context{canvas, view, style};
    for (auto _ : state) {
        canvas.clear();
        for (const GphPolygonMulti& figure : figures) {
            figure.Gph_plot(context);
        }
    }
    benchmark::DoNotOptimize(canvas.image().constBits());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(drawSquares)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

void readSpreadMap(benchmark::State& state) {
    const std::optional<std::string> path = sharedSample("samples/presc/spreadmap.shp");
    if (!path) {
        state.SkipWithError("the sample is not there");
        return;
    }
    read(state, *path, true);
}
BENCHMARK(readSpreadMap)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace campora
