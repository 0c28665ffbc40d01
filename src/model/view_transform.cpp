// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/view_transform.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "model/geodesy.h"

namespace campora {

namespace {

/// Outlines reach out of a shape by half a pen; four pixels hold the widest.
constexpr double kPenReach = 60;
/// Latitudes this far off the canvas are still counted in when the narrowest degree is looked for:
/// longer than any step.
constexpr double kStepReach = 0.1;
/// Nearer to the poles degrees of longitude shrink to nothing and then turn round.
constexpr double kMaxSafeLatitude = 89.9;

}  // namespace

ViewTransform::ViewTransform(float scaleX, float scaleY, LonLat origin, CanvasSize canvas)
    : scaleX_(scaleX), scaleY_(scaleY), origin_(origin), canvas_(canvas) {
    const double widthM = static_cast<double>(scaleX) * canvas.width;
    const double penM = kPenReach * std::max(scaleX, scaleY);
    seeRows({0, canvas.height});
    safeLatitude_ = std::min(std::max(std::abs(visibleMinY_), std::abs(visibleMaxY_)) + kStepReach,
                             kMaxSafeLatitude);
    degreesPerMetreX_ = 1 / metresPerDegreeEast(safeLatitude_);
    visibleMinX_ = origin.x - penM * degreesPerMetreX_;
    visibleMaxX_ = origin.x + (widthM + penM) * degreesPerMetreX_;
}

void ViewTransform::seeRows(CanvasRows rows) {
    const auto latitudeOf = [this](std::int32_t row) {
        return origin_.y +
               (canvas_.height - row) * static_cast<double>(scaleY_) / METERS_PER_DEGREE;
    };
    const double reach = kPenReach * std::max(scaleX_, scaleY_) / METERS_PER_DEGREE;
    visibleMinY_ = latitudeOf(rows.bottom) - reach;
    visibleMaxY_ = latitudeOf(rows.top) + reach;
}

ViewTransform ViewTransform::within(CanvasRows rows) const {
    ViewTransform part = *this;
    if (isFitted()) {
        part.seeRows(rows);
    }
    return part;
}

CanvasPoint ViewTransform::mapToScreen(double x, double y) const {
    return mapToScreen(x, y, cosineOfLatitude(y));
}

CanvasPoint ViewTransform::mapToScreen(double x, double y, double cosine) const {
    const double aboveBottom = roundToInt32((y - origin_.y) * METERS_PER_DEGREE / scaleY_);
    const double sx = (x - origin_.x) * METERS_PER_DEGREE * cosine / scaleX_;
    return {roundToInt32(sx), roundToInt32(canvas_.height - aboveBottom)};
}

LonLat ViewTransform::screenToMap(float sx, float sy) const {
    const double y =
        (canvas_.height - static_cast<double>(sy)) * scaleY_ / METERS_PER_DEGREE + origin_.y;
    const double metresX = static_cast<double>(sx) * scaleX_;
    return {metresX / metresPerDegreeEast(y) + origin_.x, y};
}

// Every comparison is written so that one with not-a-number does not make it a no.
bool ViewTransform::mayTouch(LonLat from, LonLat to, double marginM) const {
    const double marginY = marginM / METERS_PER_DEGREE;
    const double minY = visibleMinY_ - marginY;
    const double maxY = visibleMaxY_ + marginY;
    if ((from.y < minY && to.y < minY) || (from.y > maxY && to.y > maxY)) {
        return false;
    }
    const double marginX = marginM * degreesPerMetreX_;
    const double minX = visibleMinX_ - marginX;
    const double maxX = visibleMaxX_ + marginX;
    if (!(from.x < minX && to.x < minX) && !(from.x > maxX && to.x > maxX)) {
        return true;
    }
    // Both ends lie to one side, as far as a degree is nowhere narrower than on the canvas.
    const double safe = safeLatitude_ - marginY;
    return !(std::abs(from.y) <= safe && std::abs(to.y) <= safe);
}

bool ViewTransform::mayTouch(const BoundingBox& box, double marginM) const {
    return box.isSet && mayTouch({box.minX, box.minY}, {box.maxX, box.maxY}, marginM);
}

}  // namespace campora
