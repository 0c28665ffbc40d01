// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "support/work_records.h"
#include "work/gph_track.h"
#include "work/vex_alarmas.h"

namespace campora {
namespace {

GphTrack threePoints() {
    GphTrack track;
    const double degree = METERS_PER_DEGREE;
    track.addPoint(0, 0, reportRecord(90, 20));
    track.addPoint(100 / degree, 0, reportRecord(0, 40));
    track.addPoint(200 / degree, 0, reportRecord(110, 60));
    return track;
}

TEST(GphTrackExport, PolygonIsTheSwathOfAStepInItsOwnWidth) {
    const GphTrack track = threePoints();
    EXPECT_EQ(track.ExportablePolygon_polygonCount(), 2);
    const LonLat expected[] = {{0, 10}, {100, 10}, {100, -10}, {0, -10}};
    for (std::int32_t corner = 0; corner < 4; ++corner) {
        const LonLat at = track.ExportablePolygon_polygonNpoint(0, corner);
        EXPECT_NEAR(at.x * METERS_PER_DEGREE, expected[corner].x, 1e-6) << corner;
        EXPECT_NEAR(at.y * METERS_PER_DEGREE, expected[corner].y, 1e-6) << corner;
    }
    EXPECT_NEAR(track.ExportablePolygon_polygonNpoint(1, 0).y * METERS_PER_DEGREE, 20, 1e-6);
}

TEST(GphTrackExport, StepsWithoutFlowHavePointsOnlyWhileAllAreDrawn) {
    const GphTrack track = threePoints();
    MapStyle style;
    EXPECT_EQ(track.ExportablePolygon_polygonNCount(style, 1), 4);
    style.drawAll = false;
    EXPECT_EQ(track.ExportablePolygon_polygonNCount(style, 0), 4);
    EXPECT_EQ(track.ExportablePolygon_polygonNCount(style, 1), 0);
}

TEST(GphTrackExport, RowsAndPointsAreItsRecords) {
    const GphTrack track = threePoints();
    EXPECT_EQ(track.ExportableData_getDataCount(), 3);
    EXPECT_EQ(track.ExportableData_getCell(2, 0, {}), CellValue(std::int64_t{110}));
    EXPECT_EQ(track.ExportableData_getCell(1, 4, {.swathInCentimetres = true}), CellValue(4000.0F));
    EXPECT_TRUE(track.ExportableAlarms_any());
    EXPECT_EQ(alarmNames(Texts(), WorkKind::Sprayer, 0x80000302),
              "Presión Mínima; Alarma de velocidad; Alarma de nodo apagado");
    EXPECT_EQ(track.ExportablePoint_pointCount(), 3);
    EXPECT_EQ(track.ExportablePoint_pointN(1), atMetres(100, 0));
}

}  // namespace
}  // namespace campora
