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
    EXPECT_EQ(track.Gph_delayN(0), 1) << "two records of one second";
}

}  // namespace
}  // namespace campora
