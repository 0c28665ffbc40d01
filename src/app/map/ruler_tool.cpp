// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/ruler_tool.h"

#include <cmath>
#include <utility>

#include "base/numbers.h"

namespace campora {

namespace {

/// Decimals of a measured distance, as a factor.
constexpr double kHundredths = 100;

}  // namespace

RulerTool::RulerTool(const ToolSite& site) : map_(site.map), display_(site.display) {}

bool RulerTool::press(CanvasPoint at) {
    line_ = {at, at};
    showLength({});
    return true;
}

void RulerTool::drag(CanvasPoint to) {
    if (!line_) {
        return;
    }
    line_->to = to;
    const MapView& view = display_.view();
    const double eastM = (to.x - line_->from.x) * static_cast<double>(view.scaleX());
    const double northM = (to.y - line_->from.y) * static_cast<double>(view.scaleY());
    const double metres = roundHalfEven(std::hypot(eastM, northM) * kHundredths) / kHundredths;
    const Desk& desk = map_.desk();
    showLength(std::string(desk.texts(TextId::RulerDistance)) +
               numberText(metres, desk.decimalSymbol()) + " m");
}

void RulerTool::release(CanvasPoint /*at*/) {
    const auto line = std::exchange(line_, std::nullopt);
    if (!line || line->from == line->to) {
        return;
    }
    const auto& [from, to] = *line;
    const Color ink = map_.style().colors.fore;
    MapCanvas& canvas = display_.canvas();
    canvas.setPenWidth(1);
    canvas.setPenColor(ink);
    canvas.line(from, to, ink);
    canvas.text({(from.x + to.x) / 2, (from.y + to.y) / 2}, length_, TextAnchor::TopLeft, false);
    canvas.refresh();
}

void RulerTool::addShapes(MapOverlay& overlay) const {
    if (line_) {
        overlay.emplace_back(*line_);
    }
}

void RulerTool::showLength(std::string text) {
    length_ = std::move(text);
    display_.window().setToolText(length_);
}

}  // namespace campora
