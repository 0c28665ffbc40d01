// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/map_tool.h"

namespace campora {

/// Asks for another dose for what is clicked.
class DoseTool final : public MapTool {
public:
    explicit DoseTool(const ToolSite& site) : site_(site) {}

    bool press(CanvasPoint /*at*/) override { return true; }
    void release(CanvasPoint at) override {
        if (site_.onDose) {
            site_.onDose(site_.display.view().transform().screenToMap(static_cast<float>(at.x),
                                                                      static_cast<float>(at.y)));
        }
    }

private:
    ToolSite site_;
};

}  // namespace campora
