// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "app/map_display.h"
#include "app/map_tool.h"
#include "app/open_map.h"
#include "coord/coord_functions.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"

namespace campora {

/// Hands what the mouse does on the map to the tool in use. Positions are canvas units.
class MapTools {
public:
    enum class Button { Left, Middle, Right };

    /// Both outlive the tools.
    MapTools(OpenMap& map, MapDisplay& display);
    MapTools(const MapTools&) = delete;
    MapTools& operator=(const MapTools&) = delete;
    ~MapTools() = default;

    /// A click with the dose tool, at this position; may be empty.
    std::function<void(LonLat)> onDose;
    /// The information tool was asked about element `n` of a layer; may be empty.
    std::function<void(const Gph& layer, std::int32_t n)> onAsked;

    /// Asked first at each press, with every tool, and told of clicks that nothing else is meant
    /// by; null: nobody. It outlives the tools or is taken away before.
    void layOver(LayeredTool* layer);

    /// Appends what someone else shows over the map, in canvas units.
    using OverlaySource = std::function<void(MapOverlay& overlay)>;
    /// Asked whenever the overlay is put together, for as long as the tools live; what it adds lies
    /// below the shapes of the tools. Whoever has something else to show calls `showOverlay`.
    void addOverlay(OverlaySource source) { sources_.push_back(std::move(source)); }

    [[nodiscard]] ToolId tool() const { return tool_; }
    /// Takes up a tool in place of another. Tools other than Pan need an open file.
    void setTool(ToolId tool);
    /// A click of a tool's button: takes it up or, when it is in use, lays it down.
    void toggleTool(ToolId tool) { setTool(tool == tool_ ? ToolId::Pan : tool); }

    void setCoordType(CoordType type);
    [[nodiscard]] CoordType coordType() const { return coordType_; }

    // What the user does. The middle button pans with every tool. Without an open file nothing of
    // this has an effect.
    void press(Button button, CanvasPoint at);
    void move(CanvasPoint to);
    void release(Button button, CanvasPoint at);
    /// The pointer is no longer over the map.
    void leave();
    /// Lays the tool down; what was begun has no effect.
    void escape() { setTool(ToolId::Pan); }

    /// Gives up what the pressed button does.
    void cancelDrag();
    /// Takes away what the tool in use has left over the map.
    void hideResult();
    /// Marks a place on the canvas.
    void showVertex(float x, float y);
    void hideVertex();
    /// Whether the mark is that of `goTo`.
    [[nodiscard]] bool isPositionMarked() const { return position_.has_value(); }
    /// Brings the position to the middle of the canvas, as far as the map reaches, and marks it
    /// until the next tool. False when it is not on the canvas even so.
    bool goTo(LonLat position);
    /// The map was drawn anew, perhaps elsewhere: marks and texts follow.
    void viewChanged();
    /// What the tools lay over the map has changed.
    void showOverlay();
    /// For an empty map: no tool, nothing laid over it.
    void reset();

private:
    [[nodiscard]] MapTool& toolOf(ToolId id) const { return *tools_.at(id); }
    void placeMark();
    void showPosition();
    void showPointer();

    OpenMap& map_;
    MapDisplay& display_;
    std::map<ToolId, std::unique_ptr<MapTool>> tools_;
    LayeredTool* layer_ = nullptr;
    std::vector<OverlaySource> sources_;

    ToolId tool_ = ToolId::Pan;
    /// The tool that the pressed button works with; null for none.
    MapTool* dragged_ = nullptr;
    Button button_ = Button::Left;
    CanvasPoint pressed_;
    /// The pointer has gone too far for a click.
    bool moved_ = false;
    std::optional<CanvasPoint> pointer_;
    CoordType coordType_ = CoordType::Degrees;
    /// A position that is marked, wherever the view moves.
    std::optional<LonLat> position_;
    /// Where the mark is on the canvas.
    std::optional<CanvasPoint> mark_;
    /// What the window shows.
    MapOverlay overlay_;
};

}  // namespace campora
