// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "app/map_display.h"
#include "app/map_view.h"
#include "app/open_map.h"
#include "base/texts.h"
#include "coord/coord_functions.h"
#include "model/file.h"
#include "model/map_style.h"
#include "platform/clipboard.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"
#include "platform/user_locale.h"

namespace campora {

/// Someone who has vertices on the map that the mouse moves.
class VertexOwner {
public:
    virtual ~VertexOwner() = default;

    /// A button was pressed here: picks the vertex that it was meant for. False when there is none.
    virtual bool pickVertex(CanvasPoint at) = 0;
    virtual void moveVertex(CanvasPoint to) = 0;
    /// `keep`: false when the move is given up.
    virtual void dropVertex(bool keep) = 0;
    /// The map was drawn or moved to elsewhere.
    virtual void viewChanged() = 0;
};

/// What the mouse does on the map. Positions are canvas units.
class MapTools {
public:
    /// Without a tool the mouse pans.
    enum class Tool { None, ZoomSelect, Ruler, Info, PrescDosis };
    enum class Button { Left, Middle, Right };

    /// Both outlive the tools.
    MapTools(OpenMap& map, MapDisplay& display);

    /// A click of the left button without a tool and without dragging; may be empty.
    std::function<void(CanvasPoint)> onClick;
    /// A click with the dose tool, at this position; may be empty.
    std::function<void(LonLat)> onDose;

    /// Whose vertices the mouse moves from now on, with every tool; null: nobody's. It outlives the
    /// tools or is taken away before.
    void setVertexOwner(VertexOwner* owner);

    [[nodiscard]] Tool tool() const { return tool_; }
    /// Takes up a tool in place of another. Tools other than None need an open file.
    void setTool(Tool tool);
    /// A click of a tool's button: takes it up or, when it is in use, lays it down.
    void toggleTool(Tool tool) { setTool(tool == tool_ ? Tool::None : tool); }

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
    void escape() { setTool(Tool::None); }

    /// Gives up what the pressed button does.
    void cancelDrag();
    void hideInfo();
    /// Marks a place on the canvas.
    void showVertex(float x, float y);
    void hideVertex();
    /// Whether the mark is that of `goTo`.
    [[nodiscard]] bool isPositionMarked() const { return mark_.has_value(); }
    /// Lays a lot that is being drawn over the map, or takes it away.
    void showLot(std::optional<MapOverlay::Lot> lot);
    /// Brings the position to the middle of the canvas, as far as the map reaches, and marks it
    /// until the next tool. False when it is not on the canvas even so.
    bool goTo(LonLat position);
    /// The map was drawn anew, perhaps elsewhere: marks and texts follow.
    void viewChanged();
    /// The picture of the map with its scale bar and arrows; the canvas stays as it was.
    void copyImage(Clipboard& clipboard);
    /// For an empty map: no tool, nothing laid over it.
    void reset();

private:
    /// What the pressed button does.
    enum class Drag { None, Pan, Zoom, Ruler, Info, Dose, Vertex };
    struct Hit {
        File* file;
        std::string text;
    };

    void startPan(CanvasPoint at);
    void panTo(CanvasPoint to);
    void finishPan();
    void spanSelector(CanvasPoint to);
    void finishZoom();
    void stretchRuler(CanvasPoint to);
    void finishRuler();
    void finishInfo(CanvasPoint at);
    [[nodiscard]] std::optional<Hit> find(CanvasPoint at) const;
    void placeMark();
    void tellOwner();
    void showPosition();
    void setToolText(std::string text);
    void showPointer();
    void showOverlay() { window_.setOverlay(overlay_); }

    OpenMap& map_;
    MapDisplay& display_;
    MapCanvas& canvas_;
    MainWindowControls& window_;
    MapView& view_;
    const MapStyle& style_;
    LoadedFileList& files_;
    const Texts& texts_;
    const UserLocale& locale_;
    VertexOwner* vertices_ = nullptr;

    Tool tool_ = Tool::None;
    CoordType coordType_ = CoordType::Degrees;
    Drag drag_ = Drag::None;
    Button button_ = Button::Left;
    CanvasPoint pressed_;
    std::int32_t pressedScrollX_ = 0;
    std::int32_t pressedScrollY_ = 0;
    bool moved_ = false;
    std::optional<CanvasPoint> pointer_;
    /// A position that is marked, wherever the view moves.
    std::optional<LonLat> mark_;
    std::string toolText_;
    MapOverlay overlay_;
};

}  // namespace campora
