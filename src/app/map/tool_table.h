// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <span>

#include "app/map_tool.h"

namespace campora {

struct MapToolRow {
    ToolId id{};
    std::unique_ptr<MapTool> (*make)(const ToolSite& site) = nullptr;
};

/// Every tool of the map, one row each.
[[nodiscard]] std::span<const MapToolRow> mapToolRows();

}  // namespace campora
