// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/lon_lat.h"
#include "model/bounding_box.h"
#include "platform/map_canvas.h"

namespace campora {

/// How degrees become canvas units at one moment: a value, made by the view for each redraw.
/// A `scaleX` of 0 means that nothing has been fitted yet; layers then draw nothing.
class ViewTransform {
public:
    ViewTransform() = default;
    /// `scaleX`, `scaleY`: metres per canvas unit. `origin`: position at the canvas's lower left
    /// corner.
    ViewTransform(float scaleX, float scaleY, LonLat origin, CanvasSize canvas);

    /// The same for one who draws on these rows of the canvas alone: less may touch it.
    [[nodiscard]] ViewTransform within(CanvasRows rows) const;

    [[nodiscard]] bool isFitted() const { return scaleX_ != 0; }
    [[nodiscard]] float scaleX() const { return scaleX_; }
    [[nodiscard]] float scaleY() const { return scaleY_; }
    [[nodiscard]] LonLat origin() const { return origin_; }
    [[nodiscard]] CanvasSize canvas() const { return canvas_; }

    /// Rounded halves to even; far positions give the limits of 32 bits.
    [[nodiscard]] CanvasPoint mapToScreen(double x, double y) const;
    /// The same for one who knows the cosine of `y`.
    [[nodiscard]] CanvasPoint mapToScreen(double x, double y, double cosine) const;
    [[nodiscard]] LonLat screenToMap(float sx, float sy) const;

    /// Whether something within `marginM` metres of the segment may show on the canvas. May say yes
    /// wrongly near the corners, never no. The segment is what is drawn: straight between the two
    /// places on the canvas.
    [[nodiscard]] bool mayTouch(LonLat from, LonLat to, double marginM) const;
    /// The same for everything with corners in the box; no for a box that holds nothing.
    [[nodiscard]] bool mayTouch(const BoundingBox& box, double marginM) const;

private:
    void seeRows(CanvasRows rows);

    float scaleX_ = 0;
    float scaleY_ = 0;
    LonLat origin_;
    CanvasSize canvas_;
    // The canvas in degrees, wide enough for every latitude from -safeLatitude_ to safeLatitude_.
    double safeLatitude_ = 0;
    double visibleMinX_ = 0;
    double visibleMaxX_ = 0;
    double visibleMinY_ = 0;
    double visibleMaxY_ = 0;
    double degreesPerMetreX_ = 0;
};

}  // namespace campora
