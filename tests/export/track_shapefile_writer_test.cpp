// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/track_shapefile_writer.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

struct ShpTrackTest : testing::Test {
    static SwathFigure figure(double sumSpeed, double sumFlow, std::int32_t points, float swath) {
        static constexpr LonLat kRing[] = {{0, 0}, {0, 1}, {1, 1}, {1, 0}, {0, 0}};
        return {kRing, sumSpeed, sumFlow, points, swath};
    }
    /// The rows of the table, in one.
    std::string rows(const std::vector<SwathFigure>& figures) {
        TrackShapefileWriter shapes(base, {});
        for (const SwathFigure& one : figures) {
            shapes.add(one);
        }
        EXPECT_EQ(shapes.finish(), std::nullopt);
        return contentOf(base + ".dbf").substr(33 + 3 * 32);
    }

    TempFolder folder;
    std::string base = folder.file("log0105");
};

TEST_F(ShpTrackTest, AveragesAndLitresPerHectare) {
    const std::tuple<const char*, SwathFigure, const char*> table[] = {
        {"averages", figure(600, 330, 3, 20), " 200 110 16.50 "},
        {"halves to even, upwards", figure(403, 103, 2, 20), " 202 52  7.72  "},
        {"width in whole metres", figure(200, 100, 1, 14.5F), " 200 100 21.43 "},
        {"cut to the field", figure(12000, 99999 * 0.2, 1, 1), " 120020001000.0"},
        {"cut below zero", figure(1, -167, 1, 1), " 1   -167-10020"},
        {"no width", figure(200, 100, 1, 0.5F), " 200 100       "},
        {"no speed", figure(0.4, 100, 1, 15), " 0   100       "},
    };
    for (const auto& [name, one, row] : table) {
        EXPECT_EQ(rows({one}), row) << name;
    }
}

TEST_F(ShpTrackTest, ARecordWithoutSpeedKeepsTheLitresBeforeIt) {
    EXPECT_EQ(rows({figure(0, 100, 1, 15), figure(200, 100, 1, 15), figure(0, 50, 1, 15)}),
              " 0   100       "
              " 200 100 20.00 "
              " 0   50  20.00 ");
}

TEST_F(ShpTrackTest, AValueThatWouldBecomeAnotherOneIsAFailure) {
    const std::string old = folder.write("log0105.shp", "old");
    const SwathFigure rows[] = {
        figure(32768, 0, 1, 15), figure(0, -65600, 2, 15),  // beyond 16 bits
    };
    for (const SwathFigure& bad : rows) {
        TrackShapefileWriter shapes(base, {});
        shapes.add(bad);
        EXPECT_TRUE(shapes.hasFailed());
        const auto failure = shapes.finish();
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->cause.at(0).text, TextId::CellDoesNotFit);
        EXPECT_EQ(contentOf(old), "old");
    }
}

}  // namespace
}  // namespace campora
