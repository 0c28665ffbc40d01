// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/swath_groups.h"

#include <gtest/gtest.h>

#include "model/swath_geometry.h"
#include "support/work_records.h"

namespace campora {
namespace {

/// A point every 10 m on a bend to the north.
GphTrack bend(const std::vector<TrackDataNBR>& records) {
    GphTrack track;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const auto x = static_cast<double>(i) * 10;
        const LonLat at = atMetres(x, x * x / 400);
        track.addPoint(at.x, at.y, records[i]);
    }
    return track;
}

/// "first+steps" of every group.
std::string groupsOf(const GphTrack& pass, std::size_t most, bool onlySprayed) {
    std::string text;
    std::size_t step = 0;
    while (const auto group = nextSwathGroup(pass, step, most, onlySprayed)) {
        text += (text.empty() ? "" : " ") + std::to_string(group->first) + "+" +
                std::to_string(group->steps);
        step = group->first + group->steps;
    }
    return text;
}

TEST(SwathGroups, DivideAPass) {
    using Values = std::vector<float>;  // widths are 20 where there is none
    const std::tuple<const char*, Values, Values, std::size_t, const char*, const char*> rows[] = {
        {"one point", {5}, {}, 10, "", ""},
        {"a rest", {5, 5, 5, 5}, {}, 2, "0+2 2+1", "0+2 2+1"},
        {"a stop ends a group", {5, 5, 0, 0, 5, 5, 5}, {}, 3, "0+3 3+3", "0+2 4+2"},
        {"stops at the ends", {0, 5, 5, 0, 5}, {}, 10, "0+4", "1+2"},
        {"flow of the last point", {0, 0, 5}, {}, 10, "0+2", ""},
        {"another width ends a group", {5, 5, 5, 5}, {20, 20, 15}, 10, "0+2 2+1", "0+2 2+1"},
        {"width of the last point", {5, 5, 5}, {20, 20, 15}, 10, "0+2", "0+2"},
    };
    for (const auto& [name, flows, widths, most, all, sprayed] : rows) {
        SCOPED_TRACE(name);
        std::vector<TrackDataNBR> records;
        for (std::size_t i = 0; i < flows.size(); ++i) {
            const float width = i < widths.size() ? widths[i] : 20;
            records.push_back(loggerRecord(flows[i], 200, width));
        }
        const GphTrack pass = bend(records);
        EXPECT_EQ(groupsOf(pass, most, false), all);
        EXPECT_EQ(groupsOf(pass, most, true), sprayed);
    }
}

TEST(SwathGroups, RingsHaveTheCornersOfTheMapAndTile) {
    const GphTrack pass = bend(std::vector<TrackDataNBR>(6, loggerRecord(5)));
    const auto last = nextSwathGroup(pass, 3, 3, false);
    ASSERT_TRUE(last.has_value());
    EXPECT_EQ(last->sumFlow, 10) << "no step begins at the last point";
    EXPECT_EQ(last->sumSpeed, 400);
    std::vector<LonLat> one;
    std::vector<LonLat> other;
    collectSwathRing(pass, *nextSwathGroup(pass, 0, 3, false), one);
    collectSwathRing(pass, *last, other);
    ASSERT_EQ(one.size(), 9U);
    ASSERT_EQ(other.size(), 7U);
    EXPECT_EQ(one.front(), one.back());
    for (std::size_t i = 0; i < 4; ++i) {
        const SwathCorners corners = swathCorners(pass.points(), i, 20);
        EXPECT_EQ(one[i], corners.left) << i;
        EXPECT_EQ(one[7 - i], corners.right) << i;
    }
    EXPECT_EQ(one[3], other[0]);
    EXPECT_EQ(one[4], other[5]) << "neighbours share an edge";
}

}  // namespace
}  // namespace campora
