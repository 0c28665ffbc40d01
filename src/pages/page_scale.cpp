// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_scale.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "model/bounding_box.h"
#include "model/geodesy.h"

namespace campora {

namespace {

constexpr double kMmPerMetre = 1000;
constexpr double kMetresPerKm = 1000;
/// Digits of a scale: the page shows less than a hundredth more than the screen.
constexpr int kScaleDigits = 3;

CanvasSize canvasOf(const PageRect& map) {
    return {roundToInt32(map.width * kUnitsPerPageMm), roundToInt32(map.height * kUnitsPerPageMm)};
}

}  // namespace

MapExtent shownExtent(const ViewTransform& view) {
    MapExtent extent;
    extent.widthM = static_cast<double>(view.scaleX()) * view.canvas().width;
    extent.heightM = static_cast<double>(view.scaleY()) * view.canvas().height;
    extent.middle.y = view.origin().y + extent.heightM / 2 / METERS_PER_DEGREE;
    extent.middle.x = view.origin().x + extent.widthM / 2 / metresPerDegreeEast(extent.middle.y);
    return extent;
}

double scaleThatShows(const MapExtent& extent, const PageRect& map) {
    const double exact =
        std::max(extent.widthM / map.width, extent.heightM / map.height) * kMmPerMetre;
    if (!(exact > 1) || !std::isfinite(exact)) {
        return 1;
    }
    const int digits = static_cast<int>(std::floor(std::log10(exact))) + 1;
    const double step = std::pow(10.0, std::max(0, digits - kScaleDigits));
    return std::ceil(exact / step) * step;
}

std::string groupedNumber(double number) {
    constexpr std::size_t kGroup = 3;
    std::string text = numberText(roundHalfEven(number));
    for (std::size_t end = text.size(); end > kGroup; end -= kGroup) {
        text.insert(end - kGroup, "\u00A0");
    }
    return text;
}

ViewTransform pageTransform(const MapExtent& extent, const PageRect& map, double n) {
    const CanvasSize canvas = canvasOf(map);
    const double scale = n / kMmPerMetre / kUnitsPerPageMm;
    const LonLat origin{extent.middle.x -
                            canvas.width / 2.0 * scale / metresPerDegreeEast(extent.middle.y),
                        extent.middle.y - canvas.height / 2.0 * scale / METERS_PER_DEGREE};
    return {static_cast<float>(scale), static_cast<float>(scale), origin, canvas};
}

ScaleBar roundBar(double n, double mostMm) {
    struct Step {
        double digit;
        int parts;
    };
    constexpr Step kSteps[] = {{5, 5}, {2, 4}, {1, 4}};
    const double most = mostMm * n / kMmPerMetre;
    const double power = std::pow(10.0, std::floor(std::log10(most)));
    for (const auto& [digit, parts] : kSteps) {
        if (digit * power <= most) {
            return {digit * power, digit * power / n * kMmPerMetre, parts};
        }
    }
    return {power, power / n * kMmPerMetre, 4};
}

std::string distanceText(double metres, char decimalSymbol) {
    return metres < kMetresPerKm ? numberText(metres, decimalSymbol) + " m"
                                 : numberText(metres / kMetresPerKm, decimalSymbol) + " km";
}

}  // namespace campora
