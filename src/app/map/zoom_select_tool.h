// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "app/map_tool.h"

namespace campora {

/// Spans a rectangle, which then fills the canvas.
class ZoomSelectTool final : public MapTool {
public:
    explicit ZoomSelectTool(const ToolSite& site);

    bool press(CanvasPoint at) override;
    void drag(CanvasPoint to) override;
    void release(CanvasPoint at) override;
    void cancel() override { selector_.reset(); }
    [[nodiscard]] PointerShape pointer() const override { return PointerShape::ZoomSelect; }
    void addShapes(MapOverlay& overlay) const override;

private:
    const MapCanvas& canvas_;
    MapView& view_;
    CanvasPoint pressed_;
    std::optional<DashedBox> selector_;
};

}  // namespace campora
