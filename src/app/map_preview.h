// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open_map.h"

namespace campora {

/// Shows other files in place of the open ones for as long as it lives, and then everything as it
/// was: files, classes, view, title and tool.
class MapPreview {
public:
    /// All of it outlives the preview. There is one at a time.
    MapPreview(OpenMap& map, MapDisplay& display, MapTools& tools);
    MapPreview(const MapPreview&) = delete;
    MapPreview& operator=(const MapPreview&) = delete;
    ~MapPreview();

    /// Shows these files alone, without a message or question.
    void show(const std::vector<std::string>& paths);

private:
    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    MapView::Place place_;
    std::string title_;
    ToolId tool_;
};

}  // namespace campora
