// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/swath_geometry.h"

#include <algorithm>
#include <cmath>

#include "model/geodesy.h"

namespace campora {

namespace {

struct Offset {
    double x = 0;
    double y = 0;
};

/// One unit to the left of the direction of travel.
Offset leftOf(LonLat from, LonLat to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::sqrt(dx * dx + dy * dy);
    // Differences too small to be squared have no direction.
    return length > 0 ? Offset{-dy / length, dx / length} : Offset{};
}

/// Where the two lines that run one unit to the left of both steps meet.
Offset mitre(Offset arriving, Offset leaving) {
    // The meeting point is (arriving + leaving) / (1 + cosine of the turn); its distance from the
    // corner is sqrt(2 / (1 + cosine)), infinite for a full turn.
    const double onePlusCosine = 1 + arriving.x * leaving.x + arriving.y * leaving.y;
    constexpr double kLongest = 2 * kMitreLimit;  // in half widths
    if (kLongest * kLongest * onePlusCosine < 2) {
        return arriving;
    }
    return {(arriving.x + leaving.x) / onePlusCosine, (arriving.y + leaving.y) / onePlusCosine};
}

/// In half widths.
Offset offsetAt(std::span<const LonLat> pass, std::size_t i) {
    const bool arrives = i > 0;
    const bool leaves = i + 1 < pass.size();
    if (arrives && leaves) {
        return mitre(leftOf(pass[i - 1], pass[i]), leftOf(pass[i], pass[i + 1]));
    }
    if (arrives) {
        return leftOf(pass[i - 1], pass[i]);
    }
    return leaves ? leftOf(pass[i], pass[i + 1]) : Offset{};
}

double degreesOf(double metres) {
    return metres / METERS_PER_DEGREE;
}

}  // namespace

SwathCorners swathCorners(std::span<const LonLat> pass, std::size_t i, double widthMetres) {
    const LonLat point = pass[i];
    const Offset offset = offsetAt(pass, i);
    const double half = degreesOf(widthMetres / 2);
    const double x = offset.x * half / std::cos(toRadians(point.y));
    const double y = offset.y * half;
    return {{point.x + x, point.y + y}, {point.x - x, point.y - y}};
}

std::array<LonLat, 4> swathQuad(std::span<const LonLat> pass, std::size_t i, double widthMetres) {
    const SwathCorners start = swathCorners(pass, i, widthMetres);
    const SwathCorners end = swathCorners(pass, i + 1, widthMetres);
    return {start.left, end.left, end.right, start.right};
}

bool swathMayCover(LonLat from, LonLat to, double widthMetres, LonLat position) {
    const double reachY = degreesOf(kMitreLimit * std::abs(widthMetres));
    const auto [south, north] = std::minmax(from.y, to.y);
    if (position.y < south - reachY || position.y > north + reachY) {
        return false;
    }
    const double cosine =
        std::min(std::abs(std::cos(toRadians(south))), std::abs(std::cos(toRadians(north))));
    const double reachX = reachY / cosine;
    const auto [west, east] = std::minmax(from.x, to.x);
    return position.x >= west - reachX && position.x <= east + reachX;
}

double stepMetres(LonLat from, LonLat to) {
    const double x = (to.x - from.x) * METERS_PER_DEGREE * std::cos(toRadians(to.y));
    const double y = (to.y - from.y) * METERS_PER_DEGREE;
    return std::sqrt(x * x + y * y);
}

}  // namespace campora
