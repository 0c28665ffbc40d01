// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/gph_track.h"

#include <random>
#include <stdexcept>

#include <gtest/gtest.h>

#include "model/ring_geometry.h"
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

GphTrack twoLogged() {
    GphTrack track;
    track.addPoint(1, 1, loggerRecord(20));
    track.addPoint(2, 2, loggerRecord(20));
    return track;
}

TEST(GphTrack, PointAtTheLastPlaceReplacesItsRecord) {
    GphTrack track;
    addAt(track, 0, 0, reportRecord(1));
    addAt(track, 10, 0, reportRecord(2));
    addAt(track, 10, 0, reportRecord(3));
    addAt(track, 0, 0, reportRecord(4));
    ASSERT_EQ(track.points().size(), 3U);
    EXPECT_EQ(track.pointInfo(1).caudal(), 3);
    EXPECT_EQ(track.Gph_count(), 2);
    EXPECT_NEAR(track.Gph_bound().widthM, 10, 1e-9);
    EXPECT_THROW(static_cast<void>(track.pointInfo(3)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(track.pointInfo(-1)), std::out_of_range);
}

TEST(GphTrack, HoldsRecordsOfOneKind) {
    GphTrack track;
    track.reserve(10);
    track.addPoint(1, 1, loggerRecord(20));
    EXPECT_THROW(track.addPoint(2, 2, reportRecord(1)), std::invalid_argument);
    EXPECT_EQ(track.points().size(), 1U);
    EXPECT_EQ(track.pointInfo(0).caudal(), 20);
}

TEST(GphTrack, DelaysAreTheSecondsBetweenRecords) {
    GphTrack report;
    const TimeOfDay times[] = {{23, 59, 50}, {0, 0, 10}, {0, 0, 10}, {1, 0, 10}};
    double east = 0;
    for (const TimeOfDay& time : times) {
        TrackDataRPT::Fields fields = reportFields(100);
        fields.time = time;
        addAt(report, east += 10, 0, TrackDataRPT(fields));
    }
    const float expected[] = {20, 1, 3600, 1, 1};
    for (std::int32_t n = 0; n < 5; ++n) {
        EXPECT_EQ(report.Gph_delayN(n), expected[n]) << n;
    }
    EXPECT_EQ(report.Gph_delayN(-1), 1);
    EXPECT_EQ(twoLogged().Gph_delayN(0), 1);
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

    EXPECT_EQ(twoLogged().getHectareasError(MapStyle(), 0), 0);
}

TEST(GphTrack, ChangesSwathsAndAlarmsOfAllRecords) {
    TrackDataRPT::Fields fields = reportFields(100);
    fields.alarms = 0x100;
    GphTrack track;
    addAt(track, 0, 0, TrackDataRPT(fields));
    addAt(track, 10, 0, TrackDataRPT(fields));
    track.trocha(12);
    track.clearAlarmas();
    for (const TrackDataRPT& record : std::get<GphTrack::RptRecords>(track.records())) {
        EXPECT_EQ(record.trocha(), 12);
        EXPECT_EQ(record.alarmas(), 0U);
    }
}

TEST(GphTrack, FindsTheStepUnderThePointer) {
    GphTrack track;
    addAt(track, 100, 500, reportRecord(100));
    addAt(track, 200, 500, reportRecord(0));
    addAt(track, 300, 500, reportRecord(100));
    addAt(track, 400, 500, reportRecord(100));
    addAt(track, 400, 520, reportRecord(100));  // back over the last step
    addAt(track, 300, 505, reportRecord(100));
    addAt(track, 2000, 505, reportRecord(100));
    addAt(track, 2100, 505, reportRecord(100));
    struct Row {
        const char* name;
        double east;
        double north;
        bool drawAll;
        std::int32_t start;
        std::int32_t expected;
    };
    const Row rows[] = {
        {"inside the first", 150, 509, true, 0, 0},
        {"beside it", 150, 511, true, 0, -1},
        {"before the start", 150, 509, true, 1, -1},
        {"no flow, all drawn", 250, 495, true, 0, 1},
        {"no flow, only worked ones drawn", 250, 495, false, 0, -1},
        {"the first of several", 350, 508, true, 0, 2},
        {"the next of several", 350, 508, true, 3, 4},
        {"start before the first", 150, 500, true, -5, 0},
        {"start past the last", 150, 500, true, 7, -1},
        {"out of view", 2050, 505, true, 0, -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        MapStyle style;
        style.drawAll = row.drawAll;
        EXPECT_EQ(track.Gph_mouseOver(metreView(), style, atMetres(row.east, row.north), row.start),
                  row.expected);
    }
    EXPECT_EQ(track.Gph_mouseOver(ViewTransform(), MapStyle(), atMetres(150, 500), 0), -1);
    GphTrack onePoint;
    addAt(onePoint, 100, 100, reportRecord(100));
    EXPECT_EQ(onePoint.Gph_mouseOver(metreView(), MapStyle(), atMetres(100, 100), 0), -1);
}

/// The quick refusal of far steps must not lose one: against every exported polygon in turn.
TEST(GphTrack, HoverAgreesWithTheExportedPolygons) {
    std::mt19937 random(20260101);
    std::uniform_real_distribution<double> stride(-30, 30);
    std::uniform_real_distribution<float> swath(2, 40);
    GphTrack track;
    double east = 500;
    double north = 500;
    for (int i = 0; i < 200; ++i) {
        const LonLat at = atMetres(east, north);
        track.addPoint(at.x, at.y + 60, reportRecord(100, swath(random)));
        east += stride(random);
        north += stride(random);
    }
    const BoundingBox& box = track.Gph_bound();
    const ViewTransform view(1, 1, {box.minX - 0.01, box.minY - 0.01}, {10000, 10000});
    std::uniform_real_distribution<double> x(box.minX, box.maxX);
    std::uniform_real_distribution<double> y(box.minY, box.maxY);
    int hits = 0;
    for (int trial = 0; trial < 500; ++trial) {
        const LonLat position{x(random), y(random)};
        std::int32_t expected = -1;
        for (std::int32_t i = 0; i < track.Gph_count() && expected < 0; ++i) {
            std::array<LonLat, 4> ring;
            for (std::int32_t corner = 0; corner < 4; ++corner) {
                ring[static_cast<std::size_t>(corner)] =
                    track.ExportablePolygon_polygonNpoint(i, corner);
            }
            expected = pointInRing(ring, position) ? i : -1;
        }
        hits += expected >= 0 ? 1 : 0;
        EXPECT_EQ(track.Gph_mouseOver(view, MapStyle(), position, 0), expected);
    }
    EXPECT_GT(hits, 50);
}

}  // namespace
}  // namespace campora
