// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/geodesy.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"

namespace campora {

double arcCos(double x) {
    if (x <= -1) {
        return kPi;
    }
    if (x >= 1) {
        return 0;
    }
    return kHalfPi - std::atan(x / std::sqrt(1 - x * x));
}

double surfaceDistance(double lat1, double lon1, double lat2, double lon2) {
    const double lonDegrees = std::abs(std::abs(lon1) - std::abs(lon2));
    if (lat1 == lat2 && lonDegrees == 0) {
        return 0;  // rounding would leave some centimetres
    }
    const double a = (90 - lat1) * kPi / 180;
    const double b = (90 - lat2) * kPi / 180;
    const double d = lonDegrees * kPi / 180;
    const double c = std::cos(a) * std::cos(b) + std::sin(a) * std::sin(b) * std::cos(d);
    return arcCos(std::min(c, 1.0)) * (180 / kPi) * METERS_PER_DEGREE;
}

double roundSignificant(double x) {
    if (x == 0) {
        return 0;
    }
    const double magnitude = std::abs(x);
    const double decimals = 2 - roundHalfEven(std::log(magnitude) / std::log(10.0));
    const double factor = decimals >= 0 ? std::pow(10.0, decimals) : 1;
    return std::copysign(roundHalfEven(magnitude * factor) / factor, x);
}

}  // namespace campora
