// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_tools.h"

#include <utility>

#include "base/numbers.h"

namespace campora {

namespace {

PointerShape pointerOf(MapTools::Tool tool) {
    switch (tool) {
    case MapTools::Tool::None:
        return PointerShape::Arrow;
    case MapTools::Tool::ZoomSelect:
        return PointerShape::ZoomSelect;
    case MapTools::Tool::Ruler:
    case MapTools::Tool::Info:
    case MapTools::Tool::PrescDosis:
        return PointerShape::Crosshair;
    }
    return PointerShape::Arrow;
}

LonLat positionAt(const ViewTransform& view, CanvasPoint at) {
    return view.screenToMap(static_cast<float>(at.x), static_cast<float>(at.y));
}

bool holds(CanvasSize canvas, CanvasPoint at) {
    return at.x >= 0 && at.x <= canvas.width && at.y >= 0 && at.y <= canvas.height;
}

}  // namespace

MapTools::MapTools(OpenMap& map, MapDisplay& display)
    : map_(map),
      display_(display),
      canvas_(display.canvas()),
      window_(display.window()),
      view_(display.view()),
      style_(map.style()),
      files_(map.files()),
      texts_(map.desk().texts),
      locale_(map.desk().locale) {}

void MapTools::setTool(Tool tool) {
    if (files_.empty() && tool != Tool::None) {
        return;
    }
    cancelDrag();
    hideInfo();
    if (mark_) {
        hideVertex();
    }
    setToolText({});
    if (tool != tool_) {
        tool_ = tool;
        window_.commandsChanged();
    }
    showPointer();
}

void MapTools::setVertexOwner(VertexOwner* owner) {
    if (owner != vertices_) {
        cancelDrag();
        vertices_ = owner;
        showPointer();
    }
}

void MapTools::reset() {
    if (drag_ == Drag::Vertex) {
        cancelDrag();
    }
    drag_ = Drag::None;  // there is nothing left to draw
    setTool(Tool::None);
    overlay_ = {};
    showOverlay();
    pointer_.reset();
    window_.setPosition({});
}

void MapTools::setCoordType(CoordType type) {
    coordType_ = type;
    showPosition();
}

void MapTools::press(Button button, CanvasPoint at) {
    if (files_.empty() || drag_ != Drag::None || button == Button::Right) {
        return;
    }
    hideInfo();
    button_ = button;
    pressed_ = at;
    pointer_ = at;
    if (vertices_ != nullptr && vertices_->pickVertex(at)) {
        drag_ = Drag::Vertex;
        return;
    }
    if (button == Button::Middle || tool_ == Tool::None) {
        moved_ = false;
        startPan(at);
        return;
    }
    switch (tool_) {
    case Tool::None:
        return;
    case Tool::ZoomSelect:
        drag_ = Drag::Zoom;
        overlay_.selector = {at, {}};
        break;
    case Tool::Ruler:
        drag_ = Drag::Ruler;
        overlay_.ruler = {at, at};
        setToolText({});
        break;
    case Tool::Info:
        drag_ = Drag::Info;
        return;
    case Tool::PrescDosis:
        drag_ = Drag::Dose;
        return;
    }
    showOverlay();
}

void MapTools::move(CanvasPoint to) {
    if (files_.empty()) {
        return;
    }
    pointer_ = to;
    switch (drag_) {
    case Drag::None:
    case Drag::Info:
    case Drag::Dose:
        break;
    case Drag::Pan:
        panTo(to);
        break;
    case Drag::Zoom:
        spanSelector(to);
        break;
    case Drag::Ruler:
        stretchRuler(to);
        break;
    case Drag::Vertex:
        vertices_->moveVertex(to);
        break;
    }
    showPosition();
}

void MapTools::release(Button button, CanvasPoint at) {
    if (files_.empty()) {
        return;
    }
    if (drag_ == Drag::Vertex) {  // whatever the button
        if (pointer_ != at) {
            move(at);
        }
        drag_ = Drag::None;
        vertices_->dropVertex(true);
        return;
    }
    if (button == Button::Right) {
        setTool(Tool::None);
        return;
    }
    if (drag_ == Drag::None || button != button_) {
        return;
    }
    if (pointer_ != at) {
        move(at);
    }
    switch (std::exchange(drag_, Drag::None)) {
    case Drag::None:
    case Drag::Vertex:
        break;
    case Drag::Pan:
        finishPan();
        if (button == Button::Left && !moved_ && onClick) {
            onClick(at);
        }
        break;
    case Drag::Zoom:
        finishZoom();
        break;
    case Drag::Ruler:
        finishRuler();
        break;
    case Drag::Info:
        finishInfo(at);
        break;
    case Drag::Dose:
        if (onDose) {
            onDose(positionAt(view_.transform(), at));
        }
        break;
    }
}

void MapTools::leave() {
    pointer_.reset();
    window_.setPosition({});
}

void MapTools::hideInfo() {
    if (overlay_.info) {
        overlay_.info.reset();
        showOverlay();
    }
}

void MapTools::showVertex(float x, float y) {
    mark_.reset();
    overlay_.vertex = CanvasPoint{roundToInt32(x), roundToInt32(y)};
    showOverlay();
}

void MapTools::hideVertex() {
    mark_.reset();
    if (overlay_.vertex) {
        overlay_.vertex.reset();
        showOverlay();
    }
}

bool MapTools::goTo(LonLat position) {
    if (files_.empty()) {
        return false;
    }
    cancelDrag();
    hideInfo();
    mark_ = position;
    view_.centreOn(position);
    viewChanged();
    return overlay_.vertex.has_value();
}

void MapTools::viewChanged() {
    hideInfo();  // what it tells of lies elsewhere now, or shows something else
    if (drag_ == Drag::Pan && pointer_) {
        startPan(*pointer_);  // from where the view is now
    }
    placeMark();
    tellOwner();
    showPosition();
}

void MapTools::tellOwner() {
    if (vertices_ != nullptr) {
        vertices_->viewChanged();
    }
}

void MapTools::showLot(std::optional<MapOverlay::Lot> lot) {
    if (lot != overlay_.lot) {
        overlay_.lot = std::move(lot);
        showOverlay();
    }
}

void MapTools::placeMark() {
    if (!mark_) {
        return;
    }
    const CanvasPoint place = view_.transform().mapToScreen(mark_->x, mark_->y);
    overlay_.vertex = holds(canvas_.size(), place) ? std::optional(place) : std::nullopt;
    showOverlay();
}

void MapTools::copyImage(Clipboard& clipboard) {
    if (files_.empty()) {
        return;
    }
    cancelDrag();
    const OverlaidMap overlaid(canvas_, view_);
    clipboard.setPicture(canvas_.picture());
}

void MapTools::cancelDrag() {
    const Drag drag = std::exchange(drag_, Drag::None);
    if (drag == Drag::Pan) {
        finishPan();
    } else if (drag == Drag::Vertex) {
        vertices_->dropVertex(false);
    }
    if (overlay_.selector || overlay_.ruler) {
        overlay_.selector.reset();
        overlay_.ruler.reset();
        showOverlay();
    }
}

void MapTools::showPosition() {
    if (!pointer_ || files_.empty()) {
        return;
    }
    const LonLat position = positionAt(view_.transform(), *pointer_);
    std::string text(texts_(TextId::Longitude));
    text.append(formatCoord(position.x, coordType_)).append("   ");
    text.append(texts_(TextId::Latitude)).append(formatCoord(position.y, coordType_));
    window_.setPosition(text);
}

void MapTools::setToolText(std::string text) {
    toolText_ = std::move(text);
    window_.setToolText(toolText_);
}

void MapTools::showPointer() {
    const bool draws = vertices_ != nullptr && tool_ == Tool::None;
    const PointerShape shape = draws ? PointerShape::Crosshair : pointerOf(tool_);
    canvas_.setPointer(drag_ == Drag::Pan ? PointerShape::Move : shape);
}

}  // namespace campora
