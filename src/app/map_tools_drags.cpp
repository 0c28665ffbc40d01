// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What each tool does while its button is pressed, and when it is released.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "app/map/text_plate.h"
#include "app/map_tools.h"
#include "base/numbers.h"

namespace campora {

namespace {

/// Sideways movement that makes a click a drag.
constexpr std::int32_t kClickReach = 3;
/// Decimals of a measured distance, as a factor.
constexpr double kHundredths = 100;

}  // namespace

void MapTools::startPan(CanvasPoint at) {
    drag_ = Drag::Pan;
    pressed_ = at;
    pressedScrollX_ = view_.scrollX();
    pressedScrollY_ = view_.scrollY();
    view_.keepPicture();
    canvas_.setPointer(PointerShape::Move);
}

void MapTools::panTo(CanvasPoint to) {
    const CanvasPoint offset{to.x - pressed_.x, to.y - pressed_.y};
    moved_ = moved_ || std::abs(offset.x) > kClickReach;
    view_.panTo(roundToInt32(pressedScrollX_ - offset.x * static_cast<double>(view_.scaleX())),
                roundToInt32(pressedScrollY_ + offset.y * static_cast<double>(view_.scaleY())));
    canvas_.paintSnapshot(offset, 1);
    canvas_.refresh();
    placeMark();
    tellOwner();
}

void MapTools::finishPan() {
    view_.setView(view_.scaleX(), view_.scaleY(), view_.scrollX(), view_.scrollY());
    showPointer();
}

void MapTools::spanSelector(CanvasPoint to) {
    const auto [width, height] = canvas_.size();
    to = {std::clamp(to.x, 0, width), std::clamp(to.y, 0, height)};
    overlay_.selector = {{std::min(pressed_.x, to.x), std::min(pressed_.y, to.y)},
                         {std::abs(to.x - pressed_.x), std::abs(to.y - pressed_.y)}};
    showOverlay();
}

void MapTools::finishZoom() {
    const MapOverlay::Box box = overlay_.selector.value_or(MapOverlay::Box{pressed_, {}});
    overlay_.selector.reset();
    showOverlay();
    view_.zoomToRectangle(box.topLeft, box.size);
}

void MapTools::stretchRuler(CanvasPoint to) {
    overlay_.ruler = {pressed_, to};
    showOverlay();
    const double eastM = (to.x - pressed_.x) * static_cast<double>(view_.scaleX());
    const double northM = (to.y - pressed_.y) * static_cast<double>(view_.scaleY());
    const double metres = roundHalfEven(std::hypot(eastM, northM) * kHundredths) / kHundredths;
    setToolText(std::string(texts_(TextId::RulerDistance)) +
                numberText(metres, locale_.decimalSymbol()) + " m");
}

void MapTools::finishRuler() {
    const MapOverlay::Line line = overlay_.ruler.value_or(MapOverlay::Line{pressed_, pressed_});
    overlay_.ruler.reset();
    showOverlay();
    if (line.from == line.to) {
        return;
    }
    canvas_.setPenWidth(1);
    canvas_.setPenColor(style_.colors.fore);
    canvas_.line(line.from, line.to, style_.colors.fore);
    canvas_.text({(line.from.x + line.to.x) / 2, (line.from.y + line.to.y) / 2}, toolText_,
                 TextAnchor::TopLeft, false);
    canvas_.refresh();
}

void MapTools::finishInfo(CanvasPoint at) {
    std::optional<Hit> hit = find(at);
    if (!hit) {
        return;
    }
    files_.setCurrentFile(hit->file);
    display_.showCurrentFile();
    display_.loadFileList(true);
    if (!hit->text.empty()) {
        overlay_.info = infoBox(canvas_, at, std::move(hit->text));
        showOverlay();
    }
}

std::optional<MapTools::Hit> MapTools::find(CanvasPoint at) const {
    const ViewTransform view = view_.transform();
    const LonLat position = view.screenToMap(static_cast<float>(at.x), static_cast<float>(at.y));
    for (int i = 0; i < files_.loadedCount(); ++i) {
        File& file = files_.file(i);
        for (const Gph* layer : file.File_gphList()) {
            const std::int32_t index = layer->Gph_mouseOver(view, style_, position, 0);
            if (index >= 0) {
                return Hit{&file, layer->Gph_getInfo({texts_, locale_, style_}, index)};
            }
        }
    }
    return std::nullopt;
}

}  // namespace campora
