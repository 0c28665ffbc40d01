// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/draw_layers.h"

#include <memory>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "app/map/place_marks.h"
#include "lots/gph_lote.h"
#include "paint/raster_canvas.h"
#include "support/recording_canvas.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

constexpr CanvasSize kCanvas{400 * 15, 300 * 15};
/// A pixel a metre; (0, 0) is the lower left corner.
const ViewTransform kView(1 / 15.0F, 1 / 15.0F, {0, 0}, kCanvas);

GphLote lotAt(double east, double north, double side) {
    return {{atMetres(east, north), atMetres(east + side, north),
             atMetres(east + side, north + side), atMetres(east, north + side)},
            ""};
}

/// Whatever parts the canvas is drawn in, the map is the same pixel by pixel.
TEST(DrawLayers, DrawsThePictureOfTheLayersOneByOne) {
    std::mt19937 random(20260104);
    std::uniform_real_distribution<double> turn(-0.9, 0.9);
    std::uniform_real_distribution<double> stride(0.2, 9);
    std::vector<std::unique_ptr<Gph>> owned;
    for (int pass = 0; pass < 30; ++pass) {
        auto track = std::make_unique<GphTrack>();
        double east = 10.0 * pass;
        double north = 40.0 * (pass % 10) - 30;
        double heading = pass;
        for (int i = 0; i < 150; ++i) {
            heading += turn(random);
            const double metres = stride(random);
            east += metres * std::cos(heading);
            north += metres * std::sin(heading);
            const LonLat at = atMetres(east, north);
            track->addPoint(at.x, at.y, reportRecord(i * 31 % 7 * 15, i % 50 < 25 ? 3.0F : 12.0F));
        }
        owned.push_back(std::move(track));
    }
    owned.push_back(std::make_unique<GphLote>(lotAt(50, 20, 200)));
    std::vector<const Gph*> layers;
    for (const auto& layer : owned) {
        layers.push_back(layer.get());
    }
    const ColorScale scale;
    for (const bool dotted : {false, true}) {
        MapStyle style;
        style.scale = &scale;
        style.drawDotted = dotted;
        RasterCanvas whole(kCanvas);
        RasterCanvas parts(kCanvas);
        MapContext one{whole, kView, style};
        for (const Gph* layer : layers) {
            layer->Gph_plot(one);
        }
        layers.back()->plotOnTop(one);
        drawLayers({parts, kView, style}, layers);
        EXPECT_EQ(parts.image(), whole.image());
    }
}

TEST(PlaceMarks, NameWhatIsTooSmallToBeSeen) {
    const auto place = [](double east, double north, double side, const char* name) {
        return MarkedPlace{lotAt(east, north, side).Gph_bound(), name};
    };
    MarkedPlace longPlace = place(100, 150, 0, "a");
    longPlace.bound.addPoint(atMetres(130, 150).x, atMetres(130, 150).y);
    using Lines = std::vector<std::string>;
    const std::tuple<const char*, std::vector<MarkedPlace>, std::size_t, Lines> rows[] = {
        {"twelve pixels can be seen", {place(100, 100, 12.1, "a")}, 0, {}},
        {"eleven cannot", {place(100, 100, 11, "a")}, 1, {"a"}},
        {"a long one can", {longPlace}, 0, {}},
        {"off the canvas", {place(500, 100, 5, "a"), {BoundingBox(), "b"}}, 0, {}},
        {"places at one spot share a mark",
         {place(100, 100, 5, "a"), place(104, 97, 2, "b"), place(200, 100, 5, "c")},
         2,
         {"a y 1 más", "c"}},
        {"names stand side by side, or not at all",
         {place(100, 100, 0, "long name"), place(115, 100, 0, "longer name"),
          place(100, 115, 0, "third name"), place(115, 115, 0, "no room"),
          place(107, 85, 0, "fourth name")},
         5,
         {"long name", "longer name", "third name", "fourth name"}},
        {"the last at the edge", {place(395, 100, 0, "a")}, 1, {"a"}},
        {"on the edge itself", {place(100, 300, 0, "a")}, 1, {"a"}},
    };
    const Texts texts;
    const MapStyle style;
    for (const auto& [name, places, frames, names] : rows) {
        SCOPED_TRACE(name);
        RecordingCanvas canvas(kCanvas);
        drawPlaceMarks({canvas, kView, style}, places, texts);
        EXPECT_EQ(canvas.callsOf("rectangle outlined").size(), frames);
        Lines written;
        for (const std::string& call : canvas.callsOf("text")) {
            const std::size_t quote = call.find('"') + 1;
            written.push_back(call.substr(quote, call.rfind('"') - quote));
        }
        EXPECT_EQ(written, names);
    }
    RecordingCanvas canvas(kCanvas);
    const MarkedPlace one[] = {place(100, 100, 0, "a")};
    drawPlaceMarks({canvas, kView, style}, one, texts);
    EXPECT_NE(canvas.callsOf("text").front().find(",2880)"), std::string::npos) << "beside it";
}

}  // namespace
}  // namespace campora
