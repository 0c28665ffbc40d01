// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Steps of zooming, drawn at once or, while the wheel turns, with the last picture moved.

#include <algorithm>

#include "app/map_view.h"
#include "app/zoom_limits.h"
#include "base/numbers.h"

namespace campora {

namespace {

constexpr float kZoomStep = 1.5F;

}  // namespace

void MapView::zoomIn() {
    const auto [width, height] = canvas_.size();
    show(zoomedIn(width / 2.0, height / 2.0));
}

void MapView::zoomOut() {
    const auto [width, height] = canvas_.size();
    show(zoomedOut(width / 2.0, height / 2.0));
}

void MapView::zoomPicture(CanvasPoint fixed, int steps) {
    const double fromBottom = canvas_.size().height - fixed.y;
    for (; steps > 0; --steps) {
        movePicture(zoomedIn(fixed.x, fromBottom));
    }
    for (; steps < 0; ++steps) {
        movePicture(zoomedOut(fixed.x, fromBottom));
    }
}

std::optional<MapView::Place> MapView::zoomedIn(double fromLeft, double fromBottom) const {
    const float scale = x_.scale / kZoomStep;
    if (!hasMap() || scale < kFinestScale) {
        return std::nullopt;
    }
    return Place{scale, x_.scrollKeeping(fromLeft, scale), y_.scrollKeeping(fromBottom, scale),
                 maxScale_};
}

std::optional<MapView::Place> MapView::zoomedOut(double fromLeft, double fromBottom) {
    if (maxScale_ == 0) {
        ZoomUno();  // fitted but never shown whole, which is where zooming out ends
        return std::nullopt;
    }
    if (!hasMap()) {
        return std::nullopt;
    }
    const float scale = std::min(x_.scale * kZoomStep, maxScale_);
    const auto [width, height] = canvas_.size();
    return Place{scale,
                 x_.within(x_.scrollKeeping(fromLeft, scale), totalBound.widthM,
                           static_cast<double>(scale) * width),
                 y_.within(y_.scrollKeeping(fromBottom, scale), totalBound.heightM,
                           static_cast<double>(scale) * height),
                 maxScale_};
}

void MapView::show(const std::optional<Place>& place) {
    if (place) {
        setView(place->scale, place->scale, place->scrollX, place->scrollY);
        updateScrollBars();
    }
}

void MapView::movePicture(const std::optional<Place>& target) {
    if (!target) {
        return;
    }
    if (!pictureMoved_) {
        keepPicture();
    }
    pictureMoved_ = true;
    x_.scale = y_.scale = target->scale;
    x_.scroll = target->scrollX;
    y_.scroll = target->scrollY;
    computeOrigin();
    const auto scale = static_cast<double>(target->scale);
    const double factor = static_cast<double>(kept_.scale) / scale;
    const double height = canvas_.size().height;
    const double left = (kept_.scrollX - target->scrollX) / scale;
    const double top = height - height * factor - (kept_.scrollY - target->scrollY) / scale;
    canvas_.paintSnapshot({roundToInt32(left), roundToInt32(top)}, factor);
    canvas_.refresh();
    updateScrollBars();
    if (onPictureMoved) {
        onPictureMoved();
    }
}

void MapView::keepPicture() {
    canvas_.takeSnapshot();
    kept_ = place();
}

void MapView::settle() {
    if (pictureMoved_) {
        setView(x_.scale, y_.scale, x_.scroll, y_.scroll);
    }
}

}  // namespace campora
