// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "coord/coord_functions.h"

#include <cmath>

#include "base/numbers.h"

namespace campora {

namespace {

std::string paddedNumber(double value) {
    return value < 0 ? numberText(value) : " " + numberText(value);
}

}  // namespace

DegreesMinutes toDegreesMinutes(double value) {
    const double degrees = std::trunc(value);
    return {degrees, (std::fabs(value) - std::fabs(degrees)) * 60};
}

DegreesMinutesSeconds toDegreesMinutesSeconds(double value) {
    const auto [degrees, decimalMinutes] = toDegreesMinutes(value);
    const double minutes = std::floor(decimalMinutes);
    return {degrees, minutes, (decimalMinutes - minutes) * 60};
}

double fromDegreesMinutesSeconds(double degrees, double minutes, double seconds) {
    const double size = std::fabs(degrees) + std::fabs(minutes / 60) + std::fabs(seconds / 3600);
    return degrees < 0 ? -size : size;
}

std::string formatCoord(double value, CoordType type) {
    switch (type) {
    case CoordType::DegreesMinutesSeconds: {
        const auto [degrees, minutes, seconds] = toDegreesMinutesSeconds(value);
        return paddedNumber(degrees) + "º " + paddedNumber(minutes) + "' " +
               paddedNumber(std::floor(seconds * 100) / 100) + "''";
    }
    case CoordType::DegreesMinutes: {
        const auto [degrees, minutes] = toDegreesMinutes(value);
        return paddedNumber(degrees) + "º " +
               paddedNumber(std::floor(minutes * 100 * 100) / 10000) + "'";
    }
    case CoordType::Degrees:
        break;
    }
    return paddedNumber(std::trunc(value * 100 * 10000) / 1000000) + "º";
}

}  // namespace campora
