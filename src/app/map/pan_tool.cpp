// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/pan_tool.h"

#include <utility>

#include "base/numbers.h"

namespace campora {

PanTool::PanTool(const ToolSite& site)
    : map_(site.map), canvas_(site.display.canvas()), view_(site.display.view()) {}

bool PanTool::press(CanvasPoint at) {
    pans_ = true;
    from_ = at;
    pointer_ = at;
    scrollX_ = view_.scrollX();
    scrollY_ = view_.scrollY();
    view_.keepPicture();
    return true;
}

void PanTool::drag(CanvasPoint to) {
    pointer_ = to;
    const CanvasPoint offset{to.x - from_.x, to.y - from_.y};
    view_.panTo(roundToInt32(scrollX_ - offset.x * static_cast<double>(view_.scaleX())),
                roundToInt32(scrollY_ + offset.y * static_cast<double>(view_.scaleY())));
    canvas_.paintSnapshot(offset, 1);
    canvas_.refresh();
}

void PanTool::release(CanvasPoint /*at*/) {
    finish();
}

void PanTool::cancel() {
    finish();
}

void PanTool::finish() {
    if (std::exchange(pans_, false) && !map_.files().empty()) {
        view_.setView(view_.scaleX(), view_.scaleY(), view_.scrollX(), view_.scrollY());
    }
}

void PanTool::viewChanged() {
    if (pans_) {
        press(pointer_);  // from where the view is now
    }
}

}  // namespace campora
