// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/zoom_select_tool.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace campora {

ZoomSelectTool::ZoomSelectTool(const ToolSite& site)
    : canvas_(site.display.canvas()), view_(site.display.view()) {}

bool ZoomSelectTool::press(CanvasPoint at) {
    pressed_ = at;
    selector_ = {at, {}};
    return true;
}

void ZoomSelectTool::drag(CanvasPoint to) {
    const auto [width, height] = canvas_.size();
    to = {std::clamp(to.x, 0, width), std::clamp(to.y, 0, height)};
    selector_ = {{std::min(pressed_.x, to.x), std::min(pressed_.y, to.y)},
                 {std::abs(to.x - pressed_.x), std::abs(to.y - pressed_.y)}};
}

void ZoomSelectTool::release(CanvasPoint /*at*/) {
    if (const auto box = std::exchange(selector_, std::nullopt)) {
        view_.zoomToRectangle(box->topLeft, box->size);
    }
}

void ZoomSelectTool::addShapes(MapOverlay& overlay) const {
    if (selector_) {
        overlay.emplace_back(*selector_);
    }
}

}  // namespace campora
