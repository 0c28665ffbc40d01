// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/geodesy.h"

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(Geodesy, RoundsToTwoOrThreeDigits) {
    const std::pair<double, double> rows[] = {
        {0, 0},           {1234.5, 1234}, {1235.5, 1236}, {0.012345, 0.0123},    {-56.78, -57},
        {3.1234, 3.12},   {3.4567, 3.5},  {99.95, 100},   {-0.0078125, -0.0078}, {999.6, 1000},
        {-1234.5, -1234}, {1e-7, 1.0e-7}, {31.622, 31.6}, {31.63, 32},           {4.45, 4.4}};
    for (const auto& [value, rounded] : rows) {
        EXPECT_DOUBLE_EQ(roundSignificant(value), rounded) << value;
    }
}

TEST(Geodesy, ArcCosineStaysDefinedAtItsEnds) {
    EXPECT_EQ(arcCos(1 + 1e-15), 0);
    EXPECT_EQ(arcCos(-1 - 1e-15), 3.14159265358979);
    for (const double x : {-0.999, -0.5, 0.0, 0.25, 0.999}) {
        EXPECT_NEAR(arcCos(x), std::acos(x), 1e-13) << x;
    }
}

/// Metres by the haversine formula, which keeps its digits where the law of cosines loses them.
double haversine(double lat1, double lon1, double lat2, double lon2) {
    const double s = std::sin(toRadians(lat2 - lat1) / 2);
    const double t = std::sin(toRadians(lon2 - lon1) / 2);
    const double h = s * s + std::cos(toRadians(lat1)) * std::cos(toRadians(lat2)) * t * t;
    return 2 * std::asin(std::sqrt(h)) * 180 / kPi * METERS_PER_DEGREE;
}

TEST(Geodesy, DistanceAlongTheGreatCircle) {
    const std::tuple<const char*, double, double, double, double> rows[] = {
        {"across the equator", 10, 20, -10, 21},
        {"across a field", -34.25, -62.48, -34.256, -62.4812},
        {"over the ocean", 36.5, -5.5, -34.5, -58.5},
    };
    for (const auto& [name, lat1, lon1, lat2, lon2] : rows) {
        EXPECT_NEAR(surfaceDistance(lat1, lon1, lat2, lon2), haversine(lat1, lon1, lat2, lon2), 0.1)
            << name;
    }
    EXPECT_EQ(surfaceDistance(-34, -60, -34, -61), surfaceDistance(-34, 60, -34, 61));
}

}  // namespace
}  // namespace campora
