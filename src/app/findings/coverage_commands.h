// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "app/map_display.h"
#include "app/open_map.h"

namespace campora {

/// The map of what was covered once, again and not at all.
class CoverageCommands {
public:
    /// Both outlive this.
    CoverageCommands(OpenMap& map, MapDisplay& display) : map_(map), display_(display) {}

    /// Why there is nothing to show; none when there is.
    [[nodiscard]] std::optional<TextId> whyNot() const;
    [[nodiscard]] bool isMapOn() const { return map_.style().mode == ColorMode::Coverage; }
    /// The map of coverage with its figures under the summary, or back to the doses.
    void toggleMap();

private:
    OpenMap& map_;
    MapDisplay& display_;
};

}  // namespace campora
