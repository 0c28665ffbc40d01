// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

#include "base/color.h"
#include "platform/picture.h"

namespace campora {

/// A position on the map canvas in canvas units (1/1440 inch; 15 are one logical pixel); y grows
/// downwards from the top edge.
struct CanvasPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const CanvasPoint&) const = default;
};

struct CanvasSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const CanvasSize&) const = default;
};

/// A strip across the whole canvas, from row `top` to before row `bottom`, in canvas units.
struct CanvasRows {
    std::int32_t top = 0;
    std::int32_t bottom = 0;
};

/// A hatch is of thin strokes far apart: what lies under it stays to be seen.
enum class FillStyle { Solid, Transparent, Hatched };
enum class PenStyle { Solid, Dotted };
enum class RectangleStyle { Outlined, Filled };
enum class TextAnchor { TopLeft, TopCentre };
enum class PointerShape { Arrow, Busy, Move, Crosshair, ZoomSelect };
/// Pictures that the canvas can paint, besides what layers draw.
enum class MapPicture { ArrowUp, ArrowDown, ArrowRight, ArrowLeft };

/// The one surface on which layers and the view draw. What is drawn stays until `clear`.
class MapCanvas {
public:
    virtual ~MapCanvas() = default;

    [[nodiscard]] virtual CanvasSize size() const = 0;

    /// Fills the canvas with the background colour.
    virtual void clear() = 0;
    virtual void setBackgroundColor(Color color) = 0;
    [[nodiscard]] virtual Color backgroundColor() const = 0;

    /// Colour of polygon outlines, points and text.
    virtual void setPenColor(Color color) = 0;
    [[nodiscard]] virtual Color penColor() const = 0;
    /// Width of lines and outlines in pixels, 1 or more.
    virtual void setPenWidth(int pixels) = 0;
    virtual void setPenStyle(PenStyle style) = 0;
    [[nodiscard]] virtual PenStyle penStyle() const = 0;

    virtual void setFillColor(Color color) = 0;
    virtual void setFillStyle(FillStyle style) = 0;

    virtual void line(CanvasPoint from, CanvasPoint to, Color color) = 0;
    virtual void rectangle(CanvasPoint corner, CanvasPoint opposite, Color color,
                           RectangleStyle style) = 0;
    virtual void point(CanvasPoint at, Color color) = 0;
    /// A closed ring (the first point is not repeated), outlined with the pen and filled with the
    /// fill colour and style; what the ring goes round more than once is inside. Neighbours that
    /// share corners leave no seam.
    virtual void polygon(std::span<const CanvasPoint> ring) = 0;
    /// Several closed rings as one figure, drawn as `polygon` but for the inside: what lies in an
    /// odd number of turns, so that a ring within a ring is a hole.
    virtual void polyPolygon(std::span<const std::span<const CanvasPoint>> rings) = 0;

    /// Text in the pen colour; `at` is its top left corner or the middle of its top edge.
    virtual void text(CanvasPoint at, std::string_view text, TextAnchor anchor, bool bold) = 0;
    [[nodiscard]] virtual CanvasSize textSize(std::string_view text, bool bold) const = 0;

    /// The picture stretched into the rectangle.
    virtual void paintPicture(MapPicture picture, CanvasPoint topLeft, CanvasSize size) = 0;

    /// Draws on one part of the canvas; what does not touch its rows may be left out.
    using DrawPart = std::function<void(MapCanvas& part, CanvasRows rows)>;
    /// Calls `draw` for parts that together are the whole canvas, at once from several threads
    /// where that is faster. Each part begins with the canvas's pen and fill and keeps of what is
    /// drawn what falls into its rows, pixel by pixel as on the whole; its state is then lost.
    virtual void drawInParts(const DrawPart& draw) { draw(*this, {0, size().height}); }

    /// What is drawn at this moment.
    [[nodiscard]] virtual Picture picture() const = 0;
    /// Keeps what is drawn, so that it can be painted moved.
    virtual void takeSnapshot() = 0;
    /// Clears the canvas and paints the snapshot with its top left corner at `offset`, `factor`
    /// times as large as it was.
    virtual void paintSnapshot(CanvasPoint offset, double factor) = 0;

    /// Makes what was drawn visible.
    virtual void refresh() = 0;
    virtual void setPointer(PointerShape shape) = 0;
};

}  // namespace campora
