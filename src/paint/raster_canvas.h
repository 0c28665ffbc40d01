// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include <QImage>

#include "paint/pixel_grid.h"
#include "platform/map_canvas.h"

class QPainter;

namespace campora {

/// The map canvas on a picture in memory: shown by the window, saved by the batch program.
/// Rings and lines are drawn pixel by pixel here, several times faster than by a general painter;
/// texts and pictures are left to the painter.
class RasterCanvas final : public MapCanvas {
public:
    /// Canvas units in one logical pixel.
    static constexpr int kUnitsPerPixel = 15;

    /// `pixelRatio`: pixels of the picture in one logical pixel, above 0.
    explicit RasterCanvas(CanvasSize size, double pixelRatio = 1);

    /// Another size and an empty picture in the background colour.
    void resize(CanvasSize size, double pixelRatio);
    [[nodiscard]] const QImage& image() const { return image_; }

    /// Called when what was drawn is to be shown, and when the pointer over the canvas changes.
    std::function<void()> onRefresh;
    std::function<void(PointerShape)> onPointer;

    [[nodiscard]] CanvasSize size() const override { return size_; }
    void clear() override;
    void setBackgroundColor(Color color) override { background_ = color; }
    [[nodiscard]] Color backgroundColor() const override { return background_; }
    void setPenColor(Color color) override { penColor_ = color; }
    [[nodiscard]] Color penColor() const override { return penColor_; }
    void setPenWidth(int pixels) override;
    void setPenStyle(PenStyle style) override { penStyle_ = style; }
    [[nodiscard]] PenStyle penStyle() const override { return penStyle_; }
    void setFillColor(Color color) override { fillColor_ = color; }
    void setFillStyle(FillStyle style) override { fillStyle_ = style; }
    void line(CanvasPoint from, CanvasPoint to, Color color) override;
    void rectangle(CanvasPoint corner, CanvasPoint opposite, Color color,
                   RectangleStyle style) override;
    void point(CanvasPoint at, Color color) override;
    void polygon(std::span<const CanvasPoint> ring) override;
    void polyPolygon(std::span<const std::span<const CanvasPoint>> rings) override;
    void text(CanvasPoint at, std::string_view text, TextAnchor anchor, bool bold) override;
    [[nodiscard]] CanvasSize textSize(std::string_view text, bool bold) const override;
    void paintPicture(MapPicture picture, CanvasPoint topLeft, CanvasSize size) override;
    void drawInParts(const DrawPart& draw) override;
    [[nodiscard]] Picture picture() const override;
    void takeSnapshot() override { snapshot_ = image_; }
    void paintSnapshot(CanvasPoint offset, double factor) override;
    void refresh() override;
    void setPointer(PointerShape shape) override;

private:
    /// The rows from `firstRow` to before `endRow` of `whole`, whose pixels it draws on while both
    /// live; `pixels` are those of the whole.
    RasterCanvas(const RasterCanvas& whole, std::uint32_t* pixels, int firstRow, int endRow);

    [[nodiscard]] PixelGrid grid();
    [[nodiscard]] PixelPoint toPixels(CanvasPoint point) const;
    void clipToPart(QPainter& painter) const;
    [[nodiscard]] LineDrawer::Pen pen(Color color) const;
    /// None for rings that stay open.
    [[nodiscard]] std::optional<PixelFill> fill() const;
    /// Closed rings as one figure, filled when there is a colour for it and then outlined.
    void drawRings(std::span<const std::span<const CanvasPoint>> rings,
                   const std::optional<PixelFill>& fill, FillRule rule, Color outline);
    void outlineRing(const PixelGrid& pixels, std::span<const PixelPoint> ring,
                     const LineDrawer::Pen& pen);

    CanvasSize size_;
    double pixelsPerUnit_ = 0;
    double pixelRatio_ = 1;
    QImage image_;
    int firstRow_ = 0;
    int endRow_ = std::numeric_limits<int>::max();
    QImage snapshot_;
    Color background_{0xFFFFFF};
    Color penColor_;
    Color fillColor_;
    int penWidth_ = 1;   // logical pixels
    int penPixels_ = 1;  // pixels of the picture
    PenStyle penStyle_ = PenStyle::Solid;
    FillStyle fillStyle_ = FillStyle::Solid;
    RingFiller filler_;
    LineDrawer lines_;
    std::vector<PixelPoint> points_;  // of the rings that are being drawn, one after the other
    std::vector<std::span<const PixelPoint>> rings_;
};

/// Draws one of the canvas's own pictures into a rectangle, in the painter's units.
void drawMapPicture(QPainter& painter, const QRectF& rectangle, MapPicture picture);

}  // namespace campora
