// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_preview.h"

#include "platform/quiet_dialogs.h"

namespace campora {

MapPreview::MapPreview(OpenMap& map, MapDisplay& display, MapTools& tools)
    : map_(map),
      display_(display),
      tools_(tools),
      place_(display.view().place()),
      title_(display.title()),
      tool_(tools.tool()) {
    map_.putAway();
}

MapPreview::~MapPreview() {
    map_.bringBack();
    if (map_.files().empty()) {
        return;  // shown already
    }
    display_.recalcGphBound();
    display_.refresh();
    display_.showTitle(title_);
    tools_.setTool(tool_);
    display_.view().goBackTo(place_);
}

void MapPreview::show(const std::vector<std::string>& paths) {
    map_.reset();
    QuietDialogs quiet;
    const Desk desk = map_.desk().with(quiet);
    OpenManner quietly;
    quietly.desk = &desk;
    if (!map_.openAll(paths, quietly).empty()) {
        display_.showWhole();
    }
}

}  // namespace campora
