// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/file_gph_group.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "lots/gph_lote.h"
#include "support/scripted_platform.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

std::unique_ptr<GphLote> lotOf(LonLat a, LonLat b) {
    return std::make_unique<GphLote>(std::vector{a, b}, "");
}

/// A step of 100 metres at each of these doses, 100 specified, and an alarm at its start.
std::unique_ptr<GphTrack> workOf(const std::vector<std::int32_t>& doses, float swath,
                                 std::int32_t specified = 100) {
    auto track = std::make_unique<GphTrack>();
    for (std::size_t i = 0; i <= doses.size(); ++i) {
        TrackDataRPT::Fields fields = reportFields(i < doses.size() ? doses[i] : 0, swath);
        fields.spec[0] = specified;
        fields.alarms = 1;
        const LonLat at = atMetres(100.0 * static_cast<double>(i), 0);
        track->addPoint(at.x, at.y, TrackDataRPT(fields));
    }
    return track;
}

TEST(FileGphGroup, BoxFollowsItsLayers) {
    FileGphGroup group;
    auto first = lotOf({0, 0}, {1, 1});
    auto second = lotOf({1, 1}, {3, 3});
    GphLote& changing = *second;
    const std::vector<Gph*> layers = {first.get(), second.get()};
    group.addGph(std::move(first));
    group.addGph(std::move(second));
    EXPECT_EQ(group.File_gphList(), layers);
    EXPECT_EQ(group.File_bound().heightM, 3 * METERS_PER_DEGREE);
    changing.clear();
    changing.addPoint(-1, 2);
    group.recalcBound();
    EXPECT_EQ(group.File_bound().minX, -1);
    EXPECT_EQ(group.File_bound().heightM, 2 * METERS_PER_DEGREE);
}

TEST(FileGphGroup, ErrorHectaresAndAlarmsComeFromItsWork) {
    FileGphGroup group;
    auto work = workOf({80, 88}, 125);  // 20 % off, which counts, and 12 %, at the limit
    const GphTrack& seen = *work;
    group.addGph(std::move(work));
    group.addGph(lotOf({0, 0}, {1, 1}));
    group.addGph(workOf({130}, 250));
    FileProperties& summary = group.File_resumen();
    summary.addProperty("Fecha:", "29/11/2017", "");
    MapStyle style;
    style.errorLimit = 12;
    for (const bool on : {true, false}) {
        style.mode = on ? ColorMode::Error : ColorMode::Alarm;
        group.calcErrorArea(style, FixedLocale(','));
        summary.setProperty("Operario:", "", "");
        EXPECT_EQ(summary.entries(),
                  (std::vector<SummaryEntry>{{"Fecha:", "29/11/2017", ""},
                                             {"Hectareas Error", on ? "3,8" : "", on ? "Has" : ""},
                                             {"Operario:", "", ""}}));
    }
    group.clearAlarmas();
    for (const TrackDataRPT& record : std::get<GphTrack::RptRecords>(seen.records())) {
        EXPECT_EQ(record.alarmas(), 0U);
    }
}

}  // namespace
}  // namespace campora
