// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>

#include "model/bounding_box.h"
#include "model/gph.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"

namespace campora {

/// Where the map stands and how large it is: scale, scroll, margins, origin, and the rules that
/// fit, zoom and scroll it. Metres unless said otherwise; positions on the canvas in canvas units.
class MapView {
public:
    /// Draws every layer with the given context.
    using Plot = std::function<void(MapContext&)>;

    /// Everything is referred to, not owned; `style` supplies the colours of background and pen.
    MapView(MapCanvas& canvas, MainWindowControls& controls, const MapStyle& style, Plot plotAll);

    /// Union of the boxes of all open files; set by whoever keeps the files.
    BoundingBox totalBound;

    /// Scale and margins that show `totalBound`: the tight axis gets a border of 5 %.
    void fitView();
    /// Shows the whole scrollable extent.
    void ZoomUno();
    void zoomToBox(const BoundingBox& box);
    /// Steps of 1.5 about the middle of the canvas, or about a fixed point of it.
    void zoomIn();
    void zoomOut();
    void zoomIn(CanvasPoint fixed);
    void zoomOut(CanvasPoint fixed);
    void equalizeScales();
    /// Every redraw of the whole map goes through here.
    void setView(float scaleX, float scaleY, std::int32_t scrollX, std::int32_t scrollY);
    /// Sets the background to the number in `colour`, or to the user's own for "-1", and redraws.
    void refrescar(std::string_view colour);
    /// Burns the scale bar and the arrows into the canvas picture.
    void DrawMap();
    void updateScrollBars();
    void syncScrollBars();
    void computeOrigin();
    /// The user moved a scroll bar: positions in steps of the bars.
    void scrollBarsMoved(std::int32_t horizontal, std::int32_t vertical);
    /// Scrolls by a part of the canvas (1 = its width or height; positive is east and north),
    /// within the scrollable extent.
    void scrollBy(double east, double north);
    /// Back to the state before the first file.
    void forget();

    [[nodiscard]] ViewTransform transform() const;
    [[nodiscard]] float scaleX() const { return scaleX_; }
    [[nodiscard]] float scaleY() const { return scaleY_; }
    [[nodiscard]] std::int32_t scrollX() const { return scrollX_; }
    [[nodiscard]] std::int32_t scrollY() const { return scrollY_; }
    [[nodiscard]] std::int32_t marginX() const { return marginX_; }
    [[nodiscard]] std::int32_t marginY() const { return marginY_; }
    [[nodiscard]] double originX() const { return originX_; }
    [[nodiscard]] double originY() const { return originY_; }
    [[nodiscard]] float viewWidthM() const { return viewWidthM_; }
    [[nodiscard]] float viewHeightM() const { return viewHeightM_; }
    [[nodiscard]] float maxScale() const { return maxScale_; }
    [[nodiscard]] float scrollFactorX() const { return scrollFactorX_; }
    [[nodiscard]] float scrollFactorY() const { return scrollFactorY_; }
    [[nodiscard]] const ViewControls& controls() const { return shown_; }

private:
    MapCanvas& canvas_;
    MainWindowControls& window_;
    const MapStyle& style_;
    Plot plotAll_;

    float scaleX_ = 0;
    float scaleY_ = 0;
    std::int32_t scrollX_ = 0;
    std::int32_t scrollY_ = 0;
    std::int32_t marginX_ = 0;
    std::int32_t marginY_ = 0;
    double originX_ = 0;
    double originY_ = 0;
    float viewWidthM_ = 0;
    float viewHeightM_ = 0;
    float maxScale_ = 0;
    float scrollFactorX_ = 1;
    float scrollFactorY_ = 1;
    bool scrollEvents_ = true;
    ViewControls shown_;
};

}  // namespace campora
