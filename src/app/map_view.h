// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "base/lon_lat.h"
#include "model/bounding_box.h"
#include "model/gph.h"
#include "model/map_style.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"

namespace campora {

/// The pen, fill and empty canvas with which every drawing of the map begins.
void beginMap(MapCanvas& canvas, const MapColors& colors);

/// Where the map stands and how large it is: scale, scroll, margins, origin, and the rules that
/// fit, zoom and scroll it. Metres unless said otherwise; positions on the canvas in canvas units.
class MapView {
public:
    /// Draws every layer with the given context.
    using Plot = std::function<void(MapContext&)>;

    /// Everything is referred to, not owned; `style` supplies the colours of background and pen.
    MapView(MapCanvas& canvas, const MapStyle& style, Plot plotAll);

    /// Told what the view shows around the map, each time that it is drawn; may be empty.
    std::function<void(const ViewControls&)> onControls;

    /// Union of the boxes of all open files; set by whoever keeps the files.
    BoundingBox totalBound;

    // Without a map (`totalBound` not set, or a canvas without area) fitting, zooming and scrolling
    // do nothing.

    /// Scale and margins that show `totalBound`: the tight axis gets a border of 5 %, the other one
    /// centres the box. Draws nothing.
    void fitView();
    /// "Zoom 1": shows the whole scrollable extent, `totalBound` with its margins.
    void ZoomUno();
    /// Shows a box with a border, at the scale where zooming in ends if it is small; one equal to
    /// `totalBound` as `ZoomUno` does.
    void zoomToBox(const BoundingBox& box);
    /// Steps of 1.5 about the middle of the canvas. Zooming in ends at 0.1 metres a pixel, zooming
    /// out at the whole map.
    void zoomIn();
    void zoomOut();
    /// So many steps about a point of the canvas, in or (below 0) out, at once: what is on the
    /// canvas is painted larger or smaller, and drawn anew by `settle`.
    void zoomPicture(CanvasPoint fixed, int steps);
    /// Keeps what is on the canvas as the picture of the place that is shown.
    void keepPicture();
    /// Whether what is on the canvas was moved there and waits for `settle`.
    [[nodiscard]] bool isPictureMoved() const { return pictureMoved_; }
    /// Draws the map where its picture has only been moved.
    void settle();
    /// Called after `zoomPicture` has moved the picture; may be empty.
    std::function<void()> onPictureMoved;
    /// Both scales become the larger of the two.
    void equalizeScales();
    /// Every redraw of the whole map goes through here.
    void setView(float scaleX, float scaleY, std::int32_t scrollX, std::int32_t scrollY);
    /// "Refresh": sets the background to the colour number in `colour`, or to the user's own for
    /// "-1", and redraws.
    void refrescar(std::string_view colour);
    /// Draws no map: burns the scale bar and the visible arrows into the canvas picture.
    void DrawMap();
    /// Computes scroll bars, arrows and scale bar anew and hands them to the window. An axis with
    /// nothing to scroll goes back to 0.
    void updateScrollBars();
    /// Puts the scroll bars where the view is.
    void syncScrollBars();
    /// The position of the canvas's lower left corner, from scroll and margins.
    void computeOrigin();
    /// The user moved a scroll bar: positions in steps of the bars.
    void scrollBarsMoved(std::int32_t horizontal, std::int32_t vertical);
    /// Scrolls by a part of the canvas (1 = its width or height; positive is east and north),
    /// within the scrollable extent.
    void scrollBy(double east, double north);
    /// Scrolls to so many metres, within the scrollable extent, without a redraw: the caller moves
    /// what is on the canvas.
    void panTo(std::int32_t scrollX, std::int32_t scrollY);
    /// The lower left corner of the rectangle becomes that of the canvas, which its relatively
    /// larger side fills; never finer than zooming in ends.
    void zoomToRectangle(CanvasPoint topLeft, CanvasSize size);
    /// Brings the position to the middle of the canvas, or as near as the scrollable extent allows,
    /// at the current scale.
    void centreOn(LonLat position);
    /// Back to the state before the first file.
    void forget();

    /// Scale and scroll, to come back to.
    struct Place {
        float scale = 0;
        std::int32_t scrollX = 0;
        std::int32_t scrollY = 0;
        float maxScale = 0;
    };
    [[nodiscard]] Place place() const { return {x_.scale, x_.scroll, y_.scroll, maxScale_}; }
    /// Shows the map as it was; its extent must be the one of that time.
    void goBackTo(const Place& place);

    [[nodiscard]] ViewTransform transform() const;
    /// Metres a canvas unit; both are the same after every fit or zoom.
    [[nodiscard]] float scaleX() const { return x_.scale; }
    [[nodiscard]] float scaleY() const { return y_.scale; }
    /// Metres from the lower left corner of the scrollable extent to that of the canvas.
    [[nodiscard]] std::int32_t scrollX() const { return x_.scroll; }
    [[nodiscard]] std::int32_t scrollY() const { return y_.scroll; }
    /// Metres of empty border on either side of `totalBound`.
    [[nodiscard]] std::int32_t marginX() const { return x_.margin; }
    [[nodiscard]] std::int32_t marginY() const { return y_.margin; }
    /// Longitude at the left edge and latitude at the bottom edge of the canvas.
    [[nodiscard]] double originX() const { return origin_.x; }
    [[nodiscard]] double originY() const { return origin_.y; }
    [[nodiscard]] float viewWidthM() const { return x_.viewM; }
    [[nodiscard]] float viewHeightM() const { return y_.viewM; }
    /// The scale of the last `ZoomUno`, where zooming out stops; 0 before the first.
    [[nodiscard]] float maxScale() const { return maxScale_; }
    /// Metres a step of the scroll bar.
    [[nodiscard]] float scrollFactorX() const { return x_.scrollFactor; }
    [[nodiscard]] float scrollFactorY() const { return y_.scrollFactor; }
    [[nodiscard]] const ViewControls& controls() const { return shown_; }

private:
    struct Axis {
        float scale = 0;
        std::int32_t scroll = 0;
        std::int32_t margin = 0;
        float viewM = 0;
        float scrollFactor = 1;

        /// Where the scroll must be so that a point stays where it is, `canvasUnits` from the edge
        /// that scrolling counts from, under another scale.
        [[nodiscard]] std::int32_t scrollKeeping(double canvasUnits, float newScale) const;
        /// The scroll of the far end, for so many metres of map and of canvas; below 0 when the
        /// canvas is the larger.
        [[nodiscard]] std::int32_t range(double extentM, double canvasM) const;
        /// `wanted`, or the nearest scroll that there is.
        [[nodiscard]] std::int32_t within(std::int32_t wanted, double extentM,
                                          double canvasM) const;
        [[nodiscard]] ScrollBarState fitScrollBar(std::int32_t scrollRange);
    };
    struct ScaleAndMargins;

    [[nodiscard]] bool hasMap() const;
    /// At no finer scale than `finest`, unless that is 0.
    [[nodiscard]] ScaleAndMargins scaleToShow(const BoundingBox& box, double room,
                                              float finest) const;
    // From the left and the bottom edge of the canvas to the point that stays, canvas units. None
    // where there is nothing to zoom.
    [[nodiscard]] std::optional<Place> zoomedIn(double fromLeft, double fromBottom) const;
    [[nodiscard]] std::optional<Place> zoomedOut(double fromLeft, double fromBottom);
    void show(const std::optional<Place>& place);
    void movePicture(const std::optional<Place>& target);
    void showControls();

    MapCanvas& canvas_;
    const MapStyle& style_;
    Plot plotAll_;

    Axis x_;
    Axis y_;
    LonLat origin_;
    float maxScale_ = 0;
    bool scrollEvents_ = true;
    /// The place of the canvas's snapshot.
    Place kept_;
    bool pictureMoved_ = false;
    ViewControls shown_;
};

/// While it lives the canvas shows the map with its scale bar and arrows, for a picture of it.
class OverlaidMap {
public:
    OverlaidMap(MapCanvas& canvas, MapView& view);
    OverlaidMap(const OverlaidMap&) = delete;
    OverlaidMap& operator=(const OverlaidMap&) = delete;
    ~OverlaidMap();

private:
    MapCanvas& canvas_;
};

}  // namespace campora
