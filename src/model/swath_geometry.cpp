// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/swath_geometry.h"

#include <algorithm>
#include <cmath>

#include "model/geodesy.h"

namespace campora {

namespace {

/// Up to this angle, some 600 metres, the first three terms of a cosine's series are as good as
/// all: a millionth of a millionth off.
constexpr double kSmallAngle = 1e-4;

struct Offset {
    double x = 0;
    double y = 0;
};

/// One unit to the left of the direction of travel. `cosine`: how much shorter a degree to the east
/// counts than one to the north.
Offset leftOf(LonLat from, LonLat to, double cosine = 1) {
    const double dx = (to.x - from.x) * cosine;
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

/// In half widths. `leftOfStep` answers one unit to the left of a step.
template <typename LeftOfStep>
Offset offsetAt(std::size_t points, std::size_t i, LeftOfStep leftOfStep) {
    const bool arrives = i > 0;
    const bool leaves = i + 1 < points;
    if (arrives && leaves) {
        const Offset arriving = leftOfStep(i - 1);
        return mitre(arriving, leftOfStep(i));
    }
    if (arrives) {
        return leftOfStep(i - 1);
    }
    return leaves ? leftOfStep(i) : Offset{};
}

LonLat onGlobe(LonLat corner) {
    return {std::clamp(corner.x, -kDateLine, kDateLine), std::clamp(corner.y, -kPole, kPole)};
}

SwathCorners cornersAt(LonLat point, Offset offset, double half, double cosine) {
    const double x = offset.x * half / cosine;
    const double y = offset.y * half;
    return {onGlobe({point.x + x, point.y + y}), onGlobe({point.x - x, point.y - y})};
}

double degreesOf(double metres) {
    return metres / METERS_PER_DEGREE;
}

}  // namespace

SwathCorners swathCorners(std::span<const LonLat> pass, std::size_t i, double widthMetres) {
    const Offset offset = offsetAt(
        pass.size(), i, [pass](std::size_t step) { return leftOf(pass[step], pass[step + 1]); });
    return cornersAt(pass[i], offset, degreesOf(widthMetres / 2), cosineOfLatitude(pass[i].y));
}

SwathCorners groundSwathCorners(std::span<const LonLat> pass, std::size_t i, double widthMetres) {
    const double cosine = cosineOfLatitude(pass[i].y);
    const Offset offset = offsetAt(pass.size(), i, [pass, cosine](std::size_t step) {
        return leftOf(pass[step], pass[step + 1], cosine);
    });
    return cornersAt(pass[i], offset, degreesOf(widthMetres / 2), cosine);
}

SwathSides::Corners SwathSides::corners(std::size_t i, double widthMetres) {
    const Offset offset = offsetAt(pass_.size(), i, [this](std::size_t step) {
        if (!last_ || last_->step != step) {
            const Offset side = leftOf(pass_[step], pass_[step + 1]);
            last_ = {step, side.x, side.y};
        }
        return Offset{last_->x, last_->y};
    });
    const LonLat point = pass_[i];
    const SwathCorners at =
        cornersAt(point, offset, degreesOf(widthMetres / 2), cosine(toRadians(point.y)));
    return {at, cosine(toRadians(at.left.y)), cosine(toRadians(at.right.y))};
}

double SwathSides::cosine(double latitude) {
    const double away = latitude - latitude_;
    if (!(std::abs(away) < kSmallAngle)) {
        latitude_ = latitude;
        cosine_ = std::cos(latitude);
        sine_ = std::sin(latitude);
        return cosine_;
    }
    return cosine_ * (1 - away * away / 2) - sine_ * away;
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
        std::min(std::abs(cosineOfLatitude(south)), std::abs(cosineOfLatitude(north)));
    const double reachX = reachY / cosine;
    const auto [west, east] = std::minmax(from.x, to.x);
    return position.x >= west - reachX && position.x <= east + reachX;
}

double stepMetres(LonLat from, LonLat to) {
    const double x = (to.x - from.x) * METERS_PER_DEGREE * cosineOfLatitude(to.y);
    const double y = (to.y - from.y) * METERS_PER_DEGREE;
    return std::sqrt(x * x + y * y);
}

}  // namespace campora
