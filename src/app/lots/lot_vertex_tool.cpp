// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lots/lot_vertex_tool.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace campora {

namespace {

/// Canvas units; 15 are a pixel.
constexpr double kVertexReach = 120;
constexpr double kHandleReach = 105;
/// A shorter side has no handle: it would be in the way of its vertices.
constexpr double kShortestWithHandle = 600;
/// Up and down; beyond that a click was a drag of the map.
constexpr std::int32_t kClickReach = 45;

double distance(CanvasPoint a, CanvasPoint b) {
    return std::hypot(static_cast<double>(a.x) - b.x, static_cast<double>(a.y) - b.y);
}

}  // namespace

LotVertexTool::LotVertexTool(const OpenMap& map, MapDisplay& display, MapTools& tools,
                             LotDraft& draft, std::function<void()> onChanged)
    : map_(map),
      display_(display),
      tools_(tools),
      draft_(draft),
      onChanged_(std::move(onChanged)) {}

LonLat LotVertexTool::positionAt(CanvasPoint at) const {
    const LonLat position =
        display_.view().transform().screenToMap(static_cast<float>(at.x), static_cast<float>(at.y));
    return {std::clamp(position.x, -kDateLine, kDateLine), std::clamp(position.y, -kPole, kPole)};
}

std::optional<std::size_t> LotVertexTool::vertexAt(CanvasPoint at) const {
    const ViewTransform view = display_.view().transform();
    std::optional<std::size_t> nearest;
    double least = kVertexReach;
    for (std::size_t i = 0; i < draft_.vertices().size(); ++i) {
        const auto& [x, y] = draft_.vertices()[i];
        const double away = distance(view.mapToScreen(x, y), at);
        if (away <= least) {
            least = away;
            nearest = i;
        }
    }
    return nearest;
}

std::vector<std::optional<CanvasPoint>> LotVertexTool::handles() const {
    const ViewTransform view = display_.view().transform();
    const std::vector<LonLat>& vertices = draft_.vertices();
    std::vector<std::optional<CanvasPoint>> middles;
    for (std::size_t i = 0; vertices.size() > 1 && i < vertices.size(); ++i) {
        const LonLat& next = vertices[(i + 1) % vertices.size()];
        const CanvasPoint from = view.mapToScreen(vertices[i].x, vertices[i].y);
        const bool isLong = distance(from, view.mapToScreen(next.x, next.y)) >= kShortestWithHandle;
        const LonLat middle = draft_.halfwayFrom(i);
        middles.push_back(isLong ? std::optional(view.mapToScreen(middle.x, middle.y))
                                 : std::nullopt);
    }
    if (middles.size() == 2) {
        middles.pop_back();  // there and back are one side
    }
    return middles;
}

std::optional<std::size_t> LotVertexTool::handleAt(CanvasPoint at) const {
    const std::vector<std::optional<CanvasPoint>> middles = handles();
    for (std::size_t i = 0; i < middles.size(); ++i) {
        if (middles[i] && distance(*middles[i], at) <= kHandleReach) {
            return i;
        }
    }
    return std::nullopt;
}

bool LotVertexTool::press(CanvasPoint at) {
    pressed_ = at;
    if (!display_.view().transform().isFitted()) {
        return false;
    }
    if (const auto index = vertexAt(at)) {
        draft_.beginMove(*index);
    } else if (const auto side = handleAt(at)) {
        draft_.beginInsert(*side);
    } else {
        return false;
    }
    picked_ = draft_.vertices()[*draft_.selected()];
    const CanvasPoint place = display_.view().transform().mapToScreen(picked_.x, picked_.y);
    grip_ = {place.x - at.x, place.y - at.y};
    onChanged_();
    return true;
}

void LotVertexTool::drag(CanvasPoint to) {
    // Back where it was pressed the vertex is where it was, to the last digit.
    draft_.move(to == pressed_ ? picked_ : positionAt({to.x + grip_.x, to.y + grip_.y}));
    onChanged_();
}

void LotVertexTool::release(CanvasPoint /*at*/) {
    draft_.endMove(true);
    onChanged_();
}

void LotVertexTool::cancel() {
    draft_.endMove(false);
    onChanged_();
}

void LotVertexTool::click(CanvasPoint at) {
    if (std::abs(at.y - pressed_.y) <= kClickReach) {
        draft_.append(positionAt(at));
        onChanged_();
    }
}

void LotVertexTool::viewChanged() {
    if (tools_.isPositionMarked()) {
        marked_ = false;  // the user looks for a place; the mark is for that
        return;
    }
    const ViewTransform view = display_.view().transform();
    if (view.isFitted() && draft_.selected()) {
        const auto& [x, y] = draft_.vertices()[*draft_.selected()];
        const CanvasPoint place = view.mapToScreen(x, y);
        tools_.showVertex(static_cast<float>(place.x), static_cast<float>(place.y));
        marked_ = true;
    } else if (std::exchange(marked_, false)) {
        tools_.hideVertex();
    }
}

void LotVertexTool::addShapes(MapOverlay& overlay) const {
    const ViewTransform view = display_.view().transform();
    if (!view.isFitted() || draft_.vertices().empty()) {
        return;
    }
    HandledRing ring;
    for (const auto& [x, y] : draft_.vertices()) {
        ring.vertices.push_back(view.mapToScreen(x, y));
    }
    for (const std::optional<CanvasPoint>& handle : handles()) {
        if (handle) {
            ring.handles.push_back(*handle);
        }
    }
    ring.color = map_.style().colors.lot;
    ring.filled = filled_;
    overlay.emplace_back(std::move(ring));
}

}  // namespace campora
