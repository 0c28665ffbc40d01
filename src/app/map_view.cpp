// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_view.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "app/overlay_layout.h"
#include "app/zoom_limits.h"
#include "base/numbers.h"
#include "model/geodesy.h"

namespace campora {

namespace {

/// Metres a canvas unit of a map of one point.
constexpr float kPointScale = 0.1F;
/// Border of the tight axis, as a part of the box.
constexpr double kBorder = 0.05;
/// Room for a box that is zoomed to: itself and a border on either side.
constexpr double kBoxRoom = 1.1;
/// Scroll bars have 16-bit positions; longer ways are scrolled in larger steps.
constexpr std::int32_t kMostScrollSteps = 32767;

std::int32_t centringMargin(float scale, std::int32_t canvasUnits, double extentM) {
    return roundToInt32((static_cast<double>(scale) * canvasUnits - extentM) / 2);
}

std::int32_t borderMargin(double extentM) {
    return roundToInt32(extentM * kBorder);
}

}  // namespace

void beginMap(MapCanvas& canvas, const MapColors& colors) {
    canvas.setPenWidth(1);
    canvas.clear();
    canvas.setFillStyle(FillStyle::Solid);
    canvas.setFillColor(colors.draw);
    canvas.setPenColor(colors.fore);
}

struct MapView::ScaleAndMargins {
    float scale = 0;
    std::int32_t marginX = 0;
    std::int32_t marginY = 0;
};

std::int32_t MapView::Axis::scrollKeeping(double canvasUnits, float newScale) const {
    return roundToInt32(canvasUnits * scale + scroll - canvasUnits * newScale);
}

std::int32_t MapView::Axis::range(double extentM, double canvasM) const {
    return roundToInt32(2.0 * margin + extentM - canvasM);
}

std::int32_t MapView::Axis::within(std::int32_t wanted, double extentM, double canvasM) const {
    return std::clamp(wanted, 0, std::max(range(extentM, canvasM), 0));
}

ScrollBarState MapView::Axis::fitScrollBar(std::int32_t scrollRange) {
    scrollFactor = 1;
    if (scrollRange < 1) {
        scroll = 0;
        return {false, 1, 0};
    }
    if (scrollRange <= kMostScrollSteps) {
        return {true, scrollRange, 0};
    }
    scrollFactor = static_cast<float>(static_cast<double>(scrollRange) / kMostScrollSteps);
    return {true, kMostScrollSteps, 0};
}

MapView::MapView(MapCanvas& canvas, const MapStyle& style, Plot plotAll)
    : canvas_(canvas), style_(style), plotAll_(std::move(plotAll)) {}

bool MapView::hasMap() const {
    const CanvasSize canvas = canvas_.size();
    return totalBound.isSet && canvas.width > 0 && canvas.height > 0;
}

MapView::ScaleAndMargins MapView::scaleToShow(const BoundingBox& box, double room,
                                              float finest) const {
    const auto [width, height] = canvas_.size();
    const auto tightX = static_cast<float>(box.widthM * room / width);
    const auto tightY = static_cast<float>(box.heightM * room / height);
    const float tight = std::max(tightX, tightY);
    if (tight == 0 || tight < finest) {
        // What has no scale of its own, or too fine a one, stands in the middle: a scale of 0 would
        // mean that nothing is fitted.
        const float scale = finest > 0 ? finest : kPointScale;
        return {scale, centringMargin(scale, width, box.widthM),
                centringMargin(scale, height, box.heightM)};
    }
    if (tightX >= tightY) {
        return {tightX, borderMargin(box.widthM), centringMargin(tightX, height, box.heightM)};
    }
    return {tightY, centringMargin(tightY, width, box.widthM), borderMargin(box.heightM)};
}

void MapView::fitView() {
    if (!hasMap()) {
        return;
    }
    const ScaleAndMargins fitted = scaleToShow(totalBound, 1, 0);
    x_.scale = fitted.scale;
    y_.scale = fitted.scale;
    x_.margin = fitted.marginX;
    y_.margin = fitted.marginY;
}

void MapView::ZoomUno() {
    if (!hasMap()) {
        return;
    }
    const auto [width, height] = canvas_.size();
    x_.scale = (static_cast<float>(totalBound.widthM) + 2 * static_cast<float>(x_.margin)) /
               static_cast<float>(width);
    y_.scale = (static_cast<float>(totalBound.heightM) + 2 * static_cast<float>(y_.margin)) /
               static_cast<float>(height);
    equalizeScales();
    maxScale_ = x_.scale;
    setView(x_.scale, y_.scale, 0, 0);
    updateScrollBars();
}

void MapView::zoomToBox(const BoundingBox& box) {
    if (!hasMap() || !box.isSet) {
        return;
    }
    if (totalBound.equals(box)) {
        ZoomUno();
        return;
    }
    const ScaleAndMargins fitted = scaleToShow(
        box, kBoxRoom, maxScale_ > 0 ? std::min(maxScale_, kFinestScale) : kFinestScale);
    const double eastM =
        (box.minX - totalBound.minX) * cosineOfLatitude(box.minY) * METERS_PER_DEGREE;
    const double northM = (box.minY - totalBound.minY) * METERS_PER_DEGREE;
    setView(fitted.scale, fitted.scale, roundToInt32(eastM + x_.margin - fitted.marginX),
            roundToInt32(northM + y_.margin - fitted.marginY));
    updateScrollBars();
}

void MapView::equalizeScales() {
    x_.scale = std::max(x_.scale, y_.scale);
    y_.scale = x_.scale;
}

void MapView::setView(float scaleX, float scaleY, std::int32_t scrollX, std::int32_t scrollY) {
    x_.scale = scaleX;
    y_.scale = scaleY;
    x_.scroll = scrollX;
    y_.scroll = scrollY;
    pictureMoved_ = false;
    beginMap(canvas_, style_.colors);
    computeOrigin();
    const ViewTransform view = transform();
    MapContext context{canvas_, view, style_};
    plotAll_(context);
    canvas_.refresh();
}

void MapView::computeOrigin() {
    const auto [width, height] = canvas_.size();
    const double northM = static_cast<double>(y_.scroll) - y_.margin;
    const double eastM = static_cast<double>(x_.scroll) - x_.margin;
    origin_.y = northM / METERS_PER_DEGREE + totalBound.minY;
    origin_.x = eastM / metresPerDegreeEast(origin_.y) + totalBound.minX;
    x_.viewM = x_.scale * static_cast<float>(width);
    y_.viewM = y_.scale * static_cast<float>(height);
}

void MapView::refrescar(std::string_view colour) {
    const std::int32_t number = roundToInt32(leadingNumber(colour).value_or(0));
    canvas_.setBackgroundColor(number == -1 ? style_.colors.back
                                            : Color{static_cast<std::uint32_t>(number)});
    setView(x_.scale, y_.scale, x_.scroll, y_.scroll);
}

void MapView::updateScrollBars() {
    if (!hasMap()) {
        return;
    }
    const std::int32_t rangeX = x_.range(totalBound.widthM, x_.viewM);
    const std::int32_t rangeY = y_.range(totalBound.heightM, y_.viewM);
    shown_.horizontal = x_.fitScrollBar(rangeX);
    shown_.vertical = y_.fitScrollBar(rangeY);
    const double barM =
        std::abs(overlay::kBarRight.x - overlay::kBarLeft.x) * static_cast<double>(x_.scale);
    shown_.scaleLabel = numberText(std::int64_t{roundToInt32(barM)}) + "m";
    shown_.arrows = {.up = rangeY > y_.scroll,
                     .down = y_.scroll > 0,
                     .right = rangeX > x_.scroll,
                     .left = x_.scroll > 0};
    syncScrollBars();
}

void MapView::syncScrollBars() {
    shown_.horizontal.position = roundToInt32(x_.scroll / static_cast<double>(x_.scrollFactor));
    // The vertical bar runs from north at the top to south at the bottom.
    shown_.vertical.position =
        shown_.vertical.maximum - roundToInt32(y_.scroll / static_cast<double>(y_.scrollFactor));
    showControls();
}

void MapView::showControls() {
    // A window that reports the positions it is given back as movements is not listened to.
    scrollEvents_ = false;
    if (onControls) {
        onControls(shown_);
    }
    scrollEvents_ = true;
}

void MapView::scrollBarsMoved(std::int32_t horizontal, std::int32_t vertical) {
    if (!scrollEvents_ || !hasMap()) {
        return;
    }
    const std::int32_t fromBottom = shown_.vertical.maximum - vertical;
    setView(x_.scale, y_.scale, roundToInt32(horizontal * static_cast<double>(x_.scrollFactor)),
            roundToInt32(fromBottom * static_cast<double>(y_.scrollFactor)));
    updateScrollBars();
}

void MapView::scrollBy(double east, double north) {
    if (!hasMap()) {
        return;
    }
    const auto moved = [](const Axis& axis, double part, double extentM) {
        return axis.within(roundToInt32(axis.scroll + part * axis.viewM), extentM, axis.viewM);
    };
    setView(x_.scale, y_.scale, moved(x_, east, totalBound.widthM),
            moved(y_, north, totalBound.heightM));
    updateScrollBars();
}

void MapView::panTo(std::int32_t scrollX, std::int32_t scrollY) {
    if (!hasMap()) {
        return;
    }
    x_.scroll = x_.within(scrollX, totalBound.widthM, x_.viewM);
    y_.scroll = y_.within(scrollY, totalBound.heightM, y_.viewM);
    pictureMoved_ = true;
    computeOrigin();
    updateScrollBars();
}

void MapView::zoomToRectangle(CanvasPoint topLeft, CanvasSize size) {
    if (!hasMap()) {
        return;
    }
    const auto [width, height] = canvas_.size();
    const double fromBottom = static_cast<double>(height) - topLeft.y - size.height;
    const std::int32_t scrollX =
        roundToInt32(topLeft.x * static_cast<double>(x_.scale) + x_.scroll);
    const std::int32_t scrollY = roundToInt32(fromBottom * y_.scale + y_.scroll);
    const float before = x_.scale;
    x_.scale = static_cast<float>(size.width) * x_.scale / static_cast<float>(width);
    y_.scale = static_cast<float>(size.height) * y_.scale / static_cast<float>(height);
    equalizeScales();
    const float scale = std::min(std::max(x_.scale, kFinestScale), before);
    const double widthM = static_cast<double>(scale) * width;
    const double heightM = static_cast<double>(scale) * height;
    setView(scale, scale, x_.within(scrollX, totalBound.widthM, widthM),
            y_.within(scrollY, totalBound.heightM, heightM));
    updateScrollBars();
}

void MapView::centreOn(LonLat position) {
    if (!hasMap()) {
        return;
    }
    // North first: how long a degree of longitude is at the lower edge depends on it.
    const double northM = (position.y - totalBound.minY) * METERS_PER_DEGREE;
    y_.scroll =
        y_.within(roundToInt32(northM + y_.margin - y_.viewM / 2.0), totalBound.heightM, y_.viewM);
    computeOrigin();
    const double degreeM = metresPerDegreeEast(position.y);
    const double leftEdge = position.x - x_.viewM / 2.0 / degreeM;
    const double eastM =
        (leftEdge - totalBound.minX) * cosineOfLatitude(origin_.y) * METERS_PER_DEGREE;
    setView(x_.scale, y_.scale,
            x_.within(roundToInt32(eastM + x_.margin), totalBound.widthM, x_.viewM), y_.scroll);
    updateScrollBars();
}

void MapView::DrawMap() {
    namespace o = overlay;
    settle();
    const Color color = style_.colors.fore;
    canvas_.setPenColor(color);
    canvas_.setPenWidth(1);
    canvas_.line(o::kTickLeftTop, o::kTickLeftBottom, color);
    canvas_.line(o::kTickRightTop, o::kTickRightBottom, color);
    canvas_.setPenWidth(2);
    canvas_.line(o::kBarLeft, o::kBarRight, color);
    canvas_.setPenWidth(1);
    canvas_.text(o::kLabelTop, shown_.scaleLabel, TextAnchor::TopCentre, true);
    const auto paint = [this](bool visible, MapPicture arrow) {
        if (visible) {
            canvas_.paintPicture(arrow, o::arrowPlace(arrow, canvas_.size()), o::kArrowSize);
        }
    };
    paint(shown_.arrows.up, MapPicture::ArrowUp);
    paint(shown_.arrows.down, MapPicture::ArrowDown);
    paint(shown_.arrows.right, MapPicture::ArrowRight);
    paint(shown_.arrows.left, MapPicture::ArrowLeft);
}

OverlaidMap::OverlaidMap(MapCanvas& canvas, MapView& view) : canvas_(canvas) {
    view.settle();
    canvas_.takeSnapshot();
    view.DrawMap();
}

OverlaidMap::~OverlaidMap() {
    canvas_.paintSnapshot({0, 0}, 1);  // unlike a redraw it keeps what was measured and replayed
    canvas_.refresh();
}

void MapView::goBackTo(const Place& place) {
    maxScale_ = place.maxScale;
    setView(place.scale, place.scale, place.scrollX, place.scrollY);
    updateScrollBars();
}

void MapView::forget() {
    totalBound = {};
    x_ = {};
    y_ = {};
    origin_ = {};
    maxScale_ = 0;
    pictureMoved_ = false;
    shown_ = {};
    showControls();
}

ViewTransform MapView::transform() const {
    return {x_.scale, y_.scale, origin_, canvas_.size()};
}

}  // namespace campora
