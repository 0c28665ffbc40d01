// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/gph_track.h"

#include <gtest/gtest.h>

#include "support/work_records.h"

namespace campora {
namespace {

constexpr CanvasSize kCanvas{1000, 1000};

/// A thousand metres each way from (0, 0), a metre a canvas unit.
ViewTransform metreView() {
    return {1, 1, {0, 0}, kCanvas};
}

void addAt(GphTrack& track, double east, double north, const TrackDataRPT& record) {
    const LonLat at = atMetres(east, north);
    track.addPoint(at.x, at.y, record);
}

TEST(GphTrack, HectaresAboveTheErrorLimit) {
    GphTrack track;
    addAt(track, 0, 0, reportRecord(80, 50));     // 20 % off, 100 m of 50 m
    addAt(track, 100, 0, reportRecord(90, 50));   // 10 % off: at the limit, not above
    addAt(track, 200, 0, reportRecord(130, 20));  // 30 % off, 100 m of 20 m
    addAt(track, 200, 100, reportRecord(0, 20));  // the last record has no step
    MapStyle style;
    EXPECT_FLOAT_EQ(track.getHectareasError(style, 10), 0.7F);
    EXPECT_FLOAT_EQ(track.getHectareasError(style, 25), 0.2F);
    style.selectedChannel = 1;
    EXPECT_EQ(track.getHectareasError(style, 10), 0) << "a channel that the records lack";
}

TEST(GphTrack, FindsTheStepUnderThePointer) {
    GphTrack track;
    const std::pair<LonLat, std::int32_t> stops[] = {
        {{100, 500}, 100}, {{200, 500}, 0},   {{300, 500}, 100},
        {{400, 500}, 100}, {{400, 520}, 100}, {{300, 505}, 100}};  // back over the step before
    for (const auto& [at, dose] : stops) {
        addAt(track, at.x, at.y, reportRecord(dose));
    }
    const std::tuple<const char*, LonLat, bool, std::int32_t, std::int32_t> rows[] = {
        {"no flow, all drawn", {250, 495}, true, 0, 1},
        {"no flow, only worked ones drawn", {250, 495}, false, 0, -1},
        {"the first of several", {350, 508}, true, 0, 2},
        {"the next of several", {350, 508}, true, 3, 4},
        {"start past the last", {150, 500}, true, 7, -1},
    };
    for (const auto& [name, at, drawAll, start, expected] : rows) {
        MapStyle style;
        style.drawAll = drawAll;
        EXPECT_EQ(track.Gph_mouseOver(metreView(), style, atMetres(at.x, at.y), start), expected)
            << name;
    }
    EXPECT_EQ(track.Gph_mouseOver(ViewTransform(), MapStyle(), atMetres(150, 500), 0), -1);
}

TEST(GphTrack, StepsWithoutFlowAreExportedWhileAllAreDrawn) {
    GphTrack track;
    addAt(track, 0, 0, reportRecord(90, 20));
    addAt(track, 100, 0, reportRecord(0, 40));
    addAt(track, 200, 0, reportRecord(110, 60));
    EXPECT_EQ(track.ExportablePolygon_polygonCount(), 2);
    EXPECT_EQ(track.ExportablePolygon_polygonNpoint(0, 0), atMetres(0, 10)) << "left at its start";
    EXPECT_EQ(track.ExportablePolygon_polygonNpoint(0, 2), atMetres(100, -10));
    MapStyle style;
    EXPECT_EQ(track.ExportablePolygon_polygonNCount(style, 1), 4);
    style.drawAll = false;
    EXPECT_EQ(track.ExportablePolygon_polygonNCount(style, 0), 4);
    EXPECT_EQ(track.ExportablePolygon_polygonNCount(style, 1), 0) << "without flow";
}

}  // namespace
}  // namespace campora
