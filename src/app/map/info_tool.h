// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "app/map_tool.h"

namespace campora {

/// Describes what lies under the pointer, and selects its file.
class InfoTool final : public MapTool {
public:
    explicit InfoTool(const ToolSite& site)
        : map_(site.map), display_(site.display), onAsked_(site.onAsked) {}

    bool press(CanvasPoint /*at*/) override { return true; }
    void release(CanvasPoint at) override;
    void hideResult() override { plate_.reset(); }
    void addShapes(MapOverlay& overlay) const override;

private:
    struct Hit {
        File* file;
        const Gph* layer;
        std::int32_t element;
        std::string text;
    };
    [[nodiscard]] std::optional<Hit> find(CanvasPoint at) const;

    OpenMap& map_;
    MapDisplay& display_;
    const std::function<void(const Gph&, std::int32_t)>& onAsked_;
    std::optional<TextPlate> plate_;
};

}  // namespace campora
