// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "app/map_display.h"
#include "app/open_map.h"
#include "base/lon_lat.h"
#include "model/gph.h"
#include "platform/map_canvas.h"
#include "platform/map_overlay.h"

namespace campora {

/// The tools that a person takes up; with none of the others in hand the mouse moves the map.
enum class ToolId { Pan, ZoomSelect, Ruler, Info, PrescDosis };

/// What the mouse does on the map with one tool. Positions are canvas units. A press is followed by
/// any number of drags and one release or `cancel`.
class MapTool {
public:
    MapTool() = default;
    MapTool(const MapTool&) = delete;
    MapTool& operator=(const MapTool&) = delete;
    virtual ~MapTool() = default;

    /// False when there is nothing here for this tool; no drag follows then.
    virtual bool press(CanvasPoint at) = 0;
    virtual void drag(CanvasPoint to) { static_cast<void>(to); }
    virtual void release(CanvasPoint at) = 0;
    /// What was begun is given up.
    virtual void cancel() {}
    /// The map was drawn or moved to elsewhere, perhaps while a button is pressed.
    virtual void viewChanged() {}
    /// What the last use left over the map goes.
    virtual void hideResult() {}

    [[nodiscard]] virtual PointerShape pointer() const { return PointerShape::Crosshair; }
    /// Appends what lies over the map now.
    virtual void addShapes(MapOverlay& overlay) const { static_cast<void>(overlay); }
};

/// A tool that lies over whatever other tool is in use: where it wants a press it has it.
class LayeredTool : public MapTool {
public:
    /// The left button was pressed and released on the map without a drag and without a tool.
    virtual void click(CanvasPoint at) = 0;
};

/// What tools work on; all of it outlives them.
struct ToolSite {
    OpenMap& map;
    MapDisplay& display;
    /// A dose is to be changed at this position; may be empty.
    const std::function<void(LonLat)>& onDose;
    /// Element `n` of a layer was asked about; may be empty.
    const std::function<void(const Gph& layer, std::int32_t n)>& onAsked;
};

}  // namespace campora
