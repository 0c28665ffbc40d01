// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open_map.h"
#include "base/lon_lat.h"
#include "lots/lot_draft.h"

namespace campora {

/// Draws a lot with the mouse: a click appends a vertex, vertices are dragged, new ones pulled out
/// of the middle of a side. The selected vertex is marked.
class LotVertexTool final : public LayeredTool {
public:
    /// All of it outlives the tool. `onChanged`: the draft is another.
    LotVertexTool(const OpenMap& map, MapDisplay& display, MapTools& tools, LotDraft& draft,
                  std::function<void()> onChanged);

    /// Whether the lot is filled with its colour.
    void setFilled(bool filled) { filled_ = filled; }
    /// On the globe, wherever the canvas reaches to.
    [[nodiscard]] LonLat positionAt(CanvasPoint at) const;

    bool press(CanvasPoint at) override;
    void drag(CanvasPoint to) override;
    void release(CanvasPoint at) override;
    void cancel() override;
    void click(CanvasPoint at) override;
    void viewChanged() override;
    void addShapes(MapOverlay& overlay) const override;

private:
    [[nodiscard]] std::optional<std::size_t> vertexAt(CanvasPoint at) const;
    /// The vertex before the side whose handle is there.
    [[nodiscard]] std::optional<std::size_t> handleAt(CanvasPoint at) const;
    /// The middles of the sides that are long enough to have a handle; none for the others.
    [[nodiscard]] std::vector<std::optional<CanvasPoint>> handles() const;

    const OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    LotDraft& draft_;
    std::function<void()> onChanged_;
    bool filled_ = false;
    bool marked_ = false;
    CanvasPoint pressed_;
    /// From the pointer to the vertex that it picked.
    CanvasPoint grip_;
    LonLat picked_;
};

}  // namespace campora
