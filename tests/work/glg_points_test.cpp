// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/glg_points.h"

#include <limits>
#include <span>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(GlgPoints, KeepDegreesAsSignAndMagnitude) {
    const std::pair<double, std::uint32_t> rows[] = {
        {-0.0, 0},         {1, 146409},
        {180, 26353589},   {-34.5, 0x80000000U + 5051105},
        {1e9, 0x7FFFFFFF}, {std::numeric_limits<double>::quiet_NaN(), 0}};
    for (const auto& [degrees, expected] : rows) {
        EXPECT_EQ(toGLGCoordType(degrees), expected) << degrees;
    }
}

TEST(GlgPoints, FileHoldsLatitudeAndLongitudeOfEveryPointAndNothingElse) {
    const TempFolder folder;
    const std::string path = folder.file("puntos.glg");
    const LonLat points[] = {{1, -1}, {0, 180}};
    const std::span<const LonLat> all(points);
    const std::span<const LonLat> tracks[] = {all.first(1), {}, all.last(1)};
    ASSERT_FALSE(exporttoglg(path, tracks));
    EXPECT_EQ(contentOf(path), std::string_view("\xE9\x3B\x02\x80"
                                                "\xE9\x3B\x02\x00"
                                                "\xB5\x1F\x92\x01"
                                                "\x00\x00\x00\x00",
                                                16));
    EXPECT_TRUE(exporttoglg(folder.file("missing/puntos.glg"), {})) << "the reason";
}

}  // namespace
}  // namespace campora
