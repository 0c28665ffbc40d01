// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/glg_points.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "base/files.h"
#include "support/temp_folder.h"

namespace campora {

namespace {

TEST(GlgPoints, KeepDegreesAsSignAndMagnitude) {
    struct Row {
        double degrees;
        std::uint32_t expected;
    };
    const Row rows[] = {
        {0, 0},
        {-0.0, 0},
        {1, 146409},
        {-1, 0x80000000U + 146409},
        {180, 26353589},
        {-34.5, 0x80000000U + 5051105},
        {1e9, 0x7FFFFFFF},
        {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(toGLGCoordType(row.degrees), row.expected) << row.degrees;
    }
}

TEST(GlgPoints, FileHoldsLatitudeAndLongitudeOfEveryPointAndNothingElse) {
    const TempFolder folder;
    const std::string path = folder.file("puntos.glg");
    const LonLat points[] = {{1, -1}, {0, 180}};
    ASSERT_FALSE(exporttoglg(path, points));
    const auto file = readFile(path);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->text(), std::string_view("\xE9\x3B\x02\x80"
                                             "\xE9\x3B\x02\x00"
                                             "\xB5\x1F\x92\x01"
                                             "\x00\x00\x00\x00",
                                             16));
}

TEST(GlgPoints, SaysWhyAFileCannotBeWritten) {
    const TempFolder folder;
    EXPECT_TRUE(exporttoglg(folder.file("missing/puntos.glg"), {}));
}

}  // namespace

}  // namespace campora
