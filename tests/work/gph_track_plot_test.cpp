// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <cmath>
#include <random>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/recording_canvas.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

constexpr CanvasSize kCanvas{1000, 1000};

/// Metres, so that canvas units can be read off: x = east, y = 1000 - north.
struct Stop {
    double east = 0;
    double north = 0;
    std::int32_t dose = 0;
    float swath = 20;
};

GphTrack trackOf(const std::vector<Stop>& stops) {
    GphTrack track;
    for (const Stop& stop : stops) {
        const LonLat at = atMetres(stop.east, stop.north);
        track.addPoint(at.x, at.y, reportRecord(stop.dose, stop.swath));
    }
    return track;
}

/// Of "100 500 9, 200 500 9 40": east, north, dose and perhaps the swath of each.
std::vector<Stop> stopsOf(std::string_view text) {
    std::vector<Stop> stops;
    for (const std::string_view piece : split(text, ',')) {
        std::istringstream numbers{std::string(piece)};
        Stop& stop = stops.emplace_back();
        numbers >> stop.east >> stop.north >> stop.dose;
        if (float swath = 0; numbers >> swath) {
            stop.swath = swath;
        }
    }
    return stops;
}

struct Drawing {
    RecordingCanvas canvas{kCanvas};
    ViewTransform view{1, 1, {0, 0}, kCanvas};
    MapStyle style;
    MapContext context{canvas, view, style, 15};
};

/// What was drawn in short: W is a figure of worked ground outlined in ink, w one in its own
/// colour, N and n the same without flow, L the dotted line of such a step.
std::string shortened(const std::vector<std::string>& calls) {
    const std::pair<const char*, const char*> words[] = {
        {"polygon fill=0xFF8080 style=solid pen=0x000000 width=1 solid:", "W"},
        {"polygon fill=0xFF8080 style=solid pen=0xFF8080 width=1 solid:", "w"},
        {"polygon fill=0x40FF00 style=solid pen=0x000000 width=1 solid:", "N"},
        {"polygon fill=0x40FF00 style=solid pen=0x40FF00 width=1 solid:", "n"},
        {"line 0x40FF00 width=1 dotted:", "L"}};
    std::string text;
    for (std::string call : calls) {
        for (const auto& [word, letter] : words) {
            call = replaceAll(call, word, letter);
        }
        text.append(text.empty() ? "" : "; ").append(call);
    }
    return text;
}

TEST(GphTrackPlot, JoinsStepsThatLookAlike) {
    enum Drawn { Worked, All, Dotted, AllAndDotted };
    const std::tuple<const char*, const char*, Drawn, const char*> rows[] = {
        {"a run goes up its left side and back down its right", "100 500 9, 200 500 9, 300 500 0",
         Worked, "W (100,490) (200,490) (300,490) (300,510) (200,510) (100,510)"},
        {"a turn on the spot keeps the arriving step's corners", "100 500 9, 200 500 9, 100 501 9",
         All, "W (100,490) (200,490) (100,509) (100,489) (200,510) (100,510)"},
        {"without flow, all drawn", "100 500 9, 200 500 0, 300 500 0", AllAndDotted,
         "W (100,490) (200,490) (200,510) (100,510); N (200,490) (300,490) (300,510) (200,510); "
         "L (200,500) (300,500)"},
        {"out of view and back", "800 500 9, 900 500 9, 1500 500 9, 1500 600 9, 900 600 9", All,
         "W (800,490) (900,490) (1490,490) (1510,510) (900,510) (800,510); "
         "W (1490,410) (900,410) (900,390) (1510,390)"},
        {"just off, but wide enough to be seen", "1090 500 9 200, 1090 600 9 200", All,
         "W (990,500) (990,400) (1190,400) (1190,500)"},
        {"a short step hides no colour under its outline", "100 500 9, 110 500 8, 200 500 8", All,
         "w (100,490) (110,490) (110,510) (100,510); W (110,490) (200,490) (200,510) (110,510)"},
        {"steps below a pixel are drawn at once where their colours agree",
         "100 500 9, 110 500 8, 120 500 0, 130 500 7, 220 500 7", All,
         "w (100,490) (110,490) (120,490) (120,510) (110,510) (100,510); "
         "n (120,490) (130,490) (130,510) (120,510); W (130,490) (220,490) (220,510) (130,510)"},
        {"a thin swath is thin at every angle", "100 500 9 14, 200 400 9 14", All,
         "w (105,495) (205,595) (195,605) (95,505)"},
    };
    for (const auto& [name, stops, drawn, calls] : rows) {
        Drawing drawing;
        drawing.style.drawAll = drawn == All || drawn == AllAndDotted;
        drawing.style.drawDotted = drawn >= Dotted;
        trackOf(stopsOf(stops)).Gph_plot(drawing.context);
        EXPECT_EQ(shortened(drawing.canvas.calls()), calls) << name;
        EXPECT_EQ(drawing.canvas.penStyle(), PenStyle::Solid);
    }
}

TEST(GphTrackPlot, AnotherColourBeginsAnotherFigure) {
    GphTrack track;
    for (const std::uint32_t alarms : {0U, 1U, 0U}) {
        TrackDataRPT::Fields fields = reportFields(9);
        fields.alarms = alarms;
        const LonLat at = atMetres(100.0 * static_cast<double>(track.points().size() + 1), 500);
        track.addPoint(at.x, at.y, TrackDataRPT(fields));
    }
    Drawing drawing;
    drawing.style.mode = ColorMode::Alarm;
    track.Gph_plot(drawing.context);
    ASSERT_EQ(drawing.canvas.calls().size(), 2U);
    EXPECT_TRUE(drawing.canvas.calls()[1].starts_with(
        "polygon fill=0x" + hexText(drawing.style.colors.alarm.value, 6)));
}

/// The whole is drawn as its steps are one by one where no two look alike, whatever is kept from
/// one step for the next, wherever the way leaves the canvas and however long it stays away.
TEST(GphTrackPlot, WholeIsTheSumOfItsSteps) {
    std::mt19937 random(20260102);
    std::uniform_real_distribution<double> stride(-60, 60);  // a pixel is 15
    std::vector<Stop> wild{{500, 500, 0}};
    std::vector<Stop> waves;
    for (std::int32_t i = 1; i < 500; ++i) {
        const Stop& last = wild.back();
        const double north = stride(random);
        wild.push_back({last.east + stride(random), last.north + north + std::copysign(15, north),
                        i % 7, random() % 2 == 0 ? 20.0F : 40.0F});
    }
    for (int i = 0; i <= 2000; ++i) {
        waves.push_back({500 + 900 * std::sin(i / 70.0), 0.5 * i, i % 5 * 20});
    }
    const ViewTransform near(0.1F, 0.1F, atMetres(450, 450), kCanvas);  // no step is small
    const ViewTransform far(1, 1, {0, 0}, kCanvas);
    const std::tuple<std::vector<Stop>, ViewTransform, bool> rows[] = {
        {wild, far, false}, {wild, far, true}, {waves, near, true}};
    for (const auto& [stops, view, drawAll] : rows) {
        const GphTrack track = trackOf(stops);
        Drawing whole;
        Drawing steps;
        for (Drawing* drawing : {&whole, &steps}) {
            drawing->view = view;
            drawing->style.drawAll = drawAll;
            drawing->style.drawDotted = stops.size() < 1000;
        }
        track.Gph_plot(whole.context);
        for (std::int32_t n = 0; n < track.Gph_count(); ++n) {
            static_cast<void>(track.Gph_plotN(steps.context, n));
        }
        EXPECT_GT(whole.canvas.calls().size(), 20U);
        EXPECT_LT(whole.canvas.calls().size(), 499U);
        EXPECT_EQ(whole.canvas.calls(), steps.canvas.calls());
    }
}

}  // namespace
}  // namespace campora
