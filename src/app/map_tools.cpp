// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_tools.h"

#include <cstdlib>
#include <string>
#include <utility>

#include "app/map/tool_table.h"
#include "base/numbers.h"

namespace campora {

namespace {

/// Sideways movement that makes a click a drag.
constexpr std::int32_t kClickReach = 3;

bool holds(CanvasSize canvas, CanvasPoint at) {
    return at.x >= 0 && at.x <= canvas.width && at.y >= 0 && at.y <= canvas.height;
}

}  // namespace

MapTools::MapTools(OpenMap& map, MapDisplay& display) : map_(map), display_(display) {
    for (const MapToolRow& row : mapToolRows()) {
        tools_.emplace(row.id, row.make({map, display, onDose, onAsked}));
    }
}

void MapTools::setTool(ToolId tool) {
    if (map_.files().empty() && tool != ToolId::Pan) {
        return;
    }
    cancelDrag();
    hideResult();
    if (position_) {
        hideVertex();
    }
    display_.window().setToolText({});
    if (tool != tool_) {
        tool_ = tool;
        display_.window().commandsChanged();
    }
    showPointer();
}

void MapTools::layOver(LayeredTool* layer) {
    if (layer != layer_) {
        cancelDrag();
        layer_ = layer;
        showPointer();
        showOverlay();
    }
}

void MapTools::reset() {
    setTool(ToolId::Pan);
    hideVertex();
    showOverlay();
    leave();
}

void MapTools::setCoordType(CoordType type) {
    coordType_ = type;
    showPosition();
}

void MapTools::press(Button button, CanvasPoint at) {
    if (map_.files().empty() || dragged_ != nullptr || button == Button::Right) {
        return;
    }
    hideResult();
    button_ = button;
    pressed_ = at;
    pointer_ = at;
    moved_ = false;
    MapTool& inHand = toolOf(button == Button::Middle ? ToolId::Pan : tool_);
    if (layer_ != nullptr && layer_->press(at)) {
        dragged_ = layer_;
    } else if (inHand.press(at)) {
        dragged_ = &inHand;
    }
    showPointer();
    showOverlay();
}

void MapTools::move(CanvasPoint to) {
    if (map_.files().empty()) {
        return;
    }
    pointer_ = to;
    if (dragged_ != nullptr) {
        moved_ = moved_ || std::abs(to.x - pressed_.x) > kClickReach;
        dragged_->drag(to);
        placeMark();
        if (layer_ != nullptr) {
            layer_->viewChanged();
        }
        showOverlay();
    }
    showPosition();
}

void MapTools::release(Button button, CanvasPoint at) {
    if (map_.files().empty()) {
        return;
    }
    const bool ofLayer = dragged_ != nullptr && dragged_ == layer_;
    if (button == Button::Right && !ofLayer) {
        setTool(ToolId::Pan);
        return;
    }
    if (dragged_ == nullptr || (button != button_ && !ofLayer)) {
        return;
    }
    if (pointer_ != at) {
        move(at);
    }
    MapTool& used = *std::exchange(dragged_, nullptr);
    used.release(at);
    const bool isFree = &used == &toolOf(ToolId::Pan) && button == Button::Left && !moved_;
    if (isFree && layer_ != nullptr) {
        layer_->click(at);
    }
    showPointer();
    showOverlay();
}

void MapTools::leave() {
    pointer_.reset();
    display_.window().setPosition({});
}

void MapTools::hideResult() {
    toolOf(tool_).hideResult();
    showOverlay();
}

void MapTools::showVertex(float x, float y) {
    position_.reset();
    mark_ = CanvasPoint{roundToInt32(x), roundToInt32(y)};
    showOverlay();
}

void MapTools::hideVertex() {
    position_.reset();
    mark_.reset();
    showOverlay();
}

bool MapTools::goTo(LonLat position) {
    if (map_.files().empty()) {
        return false;
    }
    cancelDrag();
    position_ = position;
    display_.view().centreOn(position);
    viewChanged();
    return mark_.has_value();
}

void MapTools::viewChanged() {
    hideResult();  // it tells of what lies elsewhere now, or of something else
    if (dragged_ != nullptr) {
        dragged_->viewChanged();
    }
    placeMark();
    if (layer_ != nullptr && layer_ != dragged_) {
        layer_->viewChanged();
    }
    showOverlay();
    showPosition();
}

void MapTools::placeMark() {
    if (position_) {
        const CanvasPoint at = display_.view().transform().mapToScreen(position_->x, position_->y);
        mark_ = holds(display_.canvas().size(), at) ? std::optional(at) : std::nullopt;
    }
}

void MapTools::cancelDrag() {
    if (MapTool* const given = std::exchange(dragged_, nullptr)) {
        given->cancel();
        showPointer();
        showOverlay();
    }
}

void MapTools::showOverlay() {
    MapOverlay overlay;
    if (!map_.files().empty()) {
        for (const OverlaySource& source : sources_) {
            source(overlay);
        }
        if (layer_ != nullptr) {
            layer_->addShapes(overlay);
        }
        toolOf(tool_).addShapes(overlay);
        if (mark_) {
            overlay.emplace_back(MarkFrame{*mark_});
        }
    }
    if (overlay != overlay_) {
        overlay_ = std::move(overlay);
        display_.window().setOverlay(overlay_);
    }
}

void MapTools::showPosition() {
    if (!pointer_ || map_.files().empty()) {
        return;
    }
    const LonLat position = display_.view().transform().screenToMap(
        static_cast<float>(pointer_->x), static_cast<float>(pointer_->y));
    const Texts& texts = map_.desk().texts;
    std::string text(texts(TextId::Longitude));
    text.append(formatCoord(position.x, coordType_)).append("   ");
    text.append(texts(TextId::Latitude)).append(formatCoord(position.y, coordType_));
    display_.window().setPosition(text);
}

void MapTools::showPointer() {
    const MapTool& shown = dragged_ != nullptr                         ? *dragged_
                           : layer_ != nullptr && tool_ == ToolId::Pan ? *layer_
                                                                       : toolOf(tool_);
    display_.canvas().setPointer(shown.pointer());
}

}  // namespace campora
