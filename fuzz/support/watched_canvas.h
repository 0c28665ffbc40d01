// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string_view>

#include "cli/whole_map.h"
#include "paint/raster_canvas.h"
#include "support/stop.h"

namespace campora {

/// 800 by 600 pixels.
inline constexpr CanvasSize kMapSize{800 * RasterCanvas::kUnitsPerPixel,
                                     600 * RasterCanvas::kUnitsPerPixel};

/// The canvas of the window, which also checks the texts.
class WatchedCanvas final : public MapCanvas {
public:
    WatchedCanvas() : canvas_(kMapSize) {}

    [[nodiscard]] CanvasSize size() const override { return canvas_.size(); }
    void clear() override { canvas_.clear(); }
    void setBackgroundColor(Color color) override { canvas_.setBackgroundColor(color); }
    [[nodiscard]] Color backgroundColor() const override { return canvas_.backgroundColor(); }
    void setPenColor(Color color) override { canvas_.setPenColor(color); }
    [[nodiscard]] Color penColor() const override { return canvas_.penColor(); }
    void setPenWidth(int pixels) override { canvas_.setPenWidth(pixels); }
    void setPenStyle(PenStyle style) override { canvas_.setPenStyle(style); }
    [[nodiscard]] PenStyle penStyle() const override { return canvas_.penStyle(); }
    void setFillColor(Color color) override { canvas_.setFillColor(color); }
    void setFillStyle(FillStyle style) override { canvas_.setFillStyle(style); }
    void line(CanvasPoint from, CanvasPoint to, Color color) override {
        canvas_.line(from, to, color);
    }
    void rectangle(CanvasPoint corner, CanvasPoint opposite, Color color,
                   RectangleStyle style) override {
        canvas_.rectangle(corner, opposite, color, style);
    }
    void point(CanvasPoint at, Color color) override { canvas_.point(at, color); }
    void polygon(std::span<const CanvasPoint> ring) override { canvas_.polygon(ring); }
    void polyPolygon(std::span<const std::span<const CanvasPoint>> rings) override {
        canvas_.polyPolygon(rings);
    }
    void text(CanvasPoint at, std::string_view text, TextAnchor anchor, bool bold) override {
        checkText(text, "map");
        canvas_.text(at, text, anchor, bold);
    }
    [[nodiscard]] CanvasSize textSize(std::string_view text, bool bold) const override {
        return canvas_.textSize(text, bold);
    }
    void paintPicture(MapPicture picture, CanvasPoint topLeft, CanvasSize size) override {
        canvas_.paintPicture(picture, topLeft, size);
    }
    [[nodiscard]] Picture picture() const override { return canvas_.picture(); }
    void takeSnapshot() override { canvas_.takeSnapshot(); }
    void paintSnapshot(CanvasPoint offset, double factor) override {
        canvas_.paintSnapshot(offset, factor);
    }
    void drawInParts(const DrawPart& draw) override { canvas_.drawInParts(draw); }
    void refresh() override { canvas_.refresh(); }
    void setPointer(PointerShape shape) override { canvas_.setPointer(shape); }

private:
    OffscreenApplication application_;  // before the canvas
    RasterCanvas canvas_;
};

}  // namespace campora
