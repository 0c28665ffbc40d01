// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "app/map_tool.h"

namespace campora {

/// Moves the map with the pointer; it is drawn anew when the button is released.
class PanTool final : public MapTool {
public:
    explicit PanTool(const ToolSite& site);

    bool press(CanvasPoint at) override;
    void drag(CanvasPoint to) override;
    void release(CanvasPoint at) override;
    /// The map stays where it is by now.
    void cancel() override;
    void viewChanged() override;
    [[nodiscard]] PointerShape pointer() const override {
        return pans_ ? PointerShape::Move : PointerShape::Arrow;
    }

private:
    void finish();

    OpenMap& map_;
    MapCanvas& canvas_;
    MapView& view_;
    bool pans_ = false;
    CanvasPoint from_;
    CanvasPoint pointer_;
    /// Where the view was when the pointer was at `from_`.
    std::int32_t scrollX_ = 0;
    std::int32_t scrollY_ = 0;
};

}  // namespace campora
