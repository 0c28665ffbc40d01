// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "app/map_tool.h"

namespace campora {

/// Measures along a line, which is drawn on the map with its length and stays there until the map
/// is drawn anew.
class RulerTool final : public MapTool {
public:
    explicit RulerTool(const ToolSite& site);

    bool press(CanvasPoint at) override;
    void drag(CanvasPoint to) override;
    void release(CanvasPoint at) override;
    void cancel() override { line_.reset(); }
    void addShapes(MapOverlay& overlay) const override;

private:
    void showLength(std::string text);

    OpenMap& map_;
    MapDisplay& display_;
    std::optional<ThinLine> line_;
    std::string length_;
};

}  // namespace campora
