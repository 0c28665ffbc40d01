// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/bounding_box.h"

#include <cmath>

#include "base/numbers.h"
#include "model/geodesy.h"

namespace campora {

bool BoundingBox::equals(const BoundingBox& other) const {
    return minX == other.minX && minY == other.minY && maxX == other.maxX && maxY == other.maxY &&
           widthM == other.widthM && heightM == other.heightM;
}

void BoundingBox::addBoundingBox(const BoundingBox& other) {
    if (!isSet) {
        *this = other;
        isSet = true;
        return;
    }
    if (other.maxX > maxX) {
        maxX = other.maxX;
    }
    if (other.maxY > maxY) {
        maxY = other.maxY;
    }
    double neededHeight = other.heightM;
    if (other.minY < minY) {
        heightM += (minY - other.minY) * METERS_PER_DEGREE;
        minY = other.minY;
    } else {
        neededHeight = roundHalfEven((other.minY - minY) * METERS_PER_DEGREE + other.heightM);
    }
    if (neededHeight > heightM) {
        heightM = neededHeight;
    }
    // The cosine is that of the southern edge as it stands now, with the other box in.
    const double cosine = cosineOfLatitude(minY);
    double neededWidth = other.widthM;
    if (other.minX < minX) {
        widthM += (minX - other.minX) * METERS_PER_DEGREE * cosine;
        minX = other.minX;
    } else {
        neededWidth =
            roundHalfEven((other.minX - minX) * METERS_PER_DEGREE * cosine + other.widthM);
    }
    if (neededWidth > widthM) {
        widthM = neededWidth;
    }
}

void BoundingBox::addPoint(double x, double y) {
    if (!isSet) {
        *this = {.minX = x, .minY = y, .maxX = x, .maxY = y, .isSet = true};
        return;
    }
    if (x < minX) {
        widthM += (minX - x) * METERS_PER_DEGREE * cosineOfLatitude(minY);
        minX = x;
    }
    if (y < minY) {
        heightM += (minY - y) * METERS_PER_DEGREE;
        minY = y;
    }
    if (x > maxX) {
        maxX = x;
    }
    if (y > maxY) {
        maxY = y;
    }
    const double dy = (y - minY) * METERS_PER_DEGREE;
    if (dy > heightM) {
        heightM = dy;
    }
    // A cosine never makes the length longer, so most points inside the box need none.
    const double dxAtEquator = (x - minX) * METERS_PER_DEGREE;
    if (dxAtEquator > widthM) {
        const double dx = dxAtEquator * cosineOfLatitude(y);
        if (dx > widthM) {
            widthM = dx;
        }
    }
}

std::int32_t BoundingBox::distanceTo(const BoundingBox& other) const {
    return roundToInt32(surfaceDistance((minY + maxY) / 2, (minX + maxX) / 2,
                                        (other.minY + other.maxY) / 2,
                                        (other.minX + other.maxX) / 2));
}

}  // namespace campora
