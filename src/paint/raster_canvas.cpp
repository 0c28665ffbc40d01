// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/raster_canvas.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

namespace campora {

namespace {

constexpr int kTextPixels = 12;

std::uint32_t pixel(Color color) {
    return qRgb(color.red(), color.green(), color.blue());
}

QFont mapFont(bool bold) {
    QFont font;
    font.setPixelSize(kTextPixels);
    font.setBold(bold);
    return font;
}

QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

RasterCanvas::RasterCanvas(CanvasSize size, double pixelRatio) {
    resize(size, pixelRatio);
}

void RasterCanvas::resize(CanvasSize size, double pixelRatio) {
    size_ = size;
    pixelRatio_ = pixelRatio;
    pixelsPerUnit_ = pixelRatio / kUnitsPerPixel;
    const int width = std::max(1, static_cast<int>(std::lround(size.width * pixelsPerUnit_)));
    const int height = std::max(1, static_cast<int>(std::lround(size.height * pixelsPerUnit_)));
    if (image_.width() != width || image_.height() != height) {
        image_ = QImage(width, height, QImage::Format_RGB32);
    }
    image_.setDevicePixelRatio(pixelRatio);
    setPenWidth(penWidth_);
    clear();
}

void RasterCanvas::clear() {
    image_.fill(pixel(background_));
}

PixelGrid RasterCanvas::grid() {
    // Asked anew each time: a copy of the picture that someone keeps must not change with it.
    auto* const pixels = reinterpret_cast<std::uint32_t*>(image_.bits());
    return {pixels, image_.width(), image_.height(),
            image_.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(std::uint32_t))};
}

PixelPoint RasterCanvas::toPixels(CanvasPoint point) const {
    return {point.x * pixelsPerUnit_, point.y * pixelsPerUnit_};
}

void RasterCanvas::setPenWidth(int pixels) {
    penWidth_ = pixels;
    penPixels_ = std::max(1, static_cast<int>(std::lround(pixels * pixelRatio_)));
}

LineDrawer::Pen RasterCanvas::pen(Color color) const {
    return {pixel(color), penPixels_, penStyle_ == PenStyle::Dotted};
}

void RasterCanvas::drawRings(std::span<const std::span<const CanvasPoint>> rings,
                             std::optional<Color> fill, FillRule rule, Color outline) {
    points_.clear();
    for (const std::span<const CanvasPoint> ring : rings) {
        for (const CanvasPoint& point : ring) {
            points_.push_back(toPixels(point));
        }
    }
    rings_.clear();
    std::span<const PixelPoint> rest(points_);
    for (const std::span<const CanvasPoint> ring : rings) {
        rings_.push_back(rest.first(ring.size()));
        rest = rest.subspan(ring.size());
    }
    const PixelGrid pixels = grid();
    if (fill) {
        filler_.fill(pixels, rings_, pixel(*fill), rule);
    }
    const LineDrawer::Pen outlinePen = pen(outline);
    for (const std::span<const PixelPoint> ring : rings_) {
        outlineRing(pixels, ring, outlinePen);
    }
}

void RasterCanvas::outlineRing(const PixelGrid& pixels, std::span<const PixelPoint> ring,
                               const LineDrawer::Pen& pen) {
    if (ring.empty()) {
        return;
    }
    const PixelPoint* previous = &ring.back();
    for (const PixelPoint& point : ring) {
        lines_.line(pixels, *previous, point, pen);
        previous = &point;
    }
}

void RasterCanvas::line(CanvasPoint from, CanvasPoint to, Color color) {
    lines_.line(grid(), toPixels(from), toPixels(to), pen(color));
}

void RasterCanvas::rectangle(CanvasPoint corner, CanvasPoint opposite, Color color,
                             RectangleStyle style) {
    const std::array<CanvasPoint, 4> corners{
        corner, {opposite.x, corner.y}, opposite, {corner.x, opposite.y}};
    const std::span<const CanvasPoint> ring(corners);
    const bool filled = style == RectangleStyle::Filled;
    drawRings(std::span(&ring, 1), filled ? std::optional(color) : std::nullopt, FillRule::NonZero,
              color);
}

void RasterCanvas::point(CanvasPoint at, Color color) {
    lines_.line(grid(), toPixels(at), toPixels(at), pen(color));
}

void RasterCanvas::polygon(std::span<const CanvasPoint> ring) {
    const bool filled = fillStyle_ == FillStyle::Solid;
    drawRings(std::span(&ring, 1), filled ? std::optional(fillColor_) : std::nullopt,
              FillRule::NonZero, penColor_);
}

void RasterCanvas::polyPolygon(std::span<const std::span<const CanvasPoint>> rings) {
    const bool filled = fillStyle_ == FillStyle::Solid;
    drawRings(rings, filled ? std::optional(fillColor_) : std::nullopt, FillRule::EvenOdd,
              penColor_);
}

void RasterCanvas::text(CanvasPoint at, std::string_view text, TextAnchor anchor, bool bold) {
    QPainter painter(&image_);
    painter.setFont(mapFont(bold));
    painter.setPen(QColor::fromRgb(pixel(penColor_)));
    const QFontMetricsF metrics(painter.font());
    const QString shown = qtText(text);
    double x = static_cast<double>(at.x) / kUnitsPerPixel;
    if (anchor == TextAnchor::TopCentre) {
        x -= metrics.horizontalAdvance(shown) / 2;
    }
    const double baseline = static_cast<double>(at.y) / kUnitsPerPixel + metrics.ascent();
    painter.drawText(QPointF(x, baseline), shown);
}

CanvasSize RasterCanvas::textSize(std::string_view text, bool bold) const {
    const QFontMetricsF metrics(mapFont(bold));
    const QSizeF size = metrics.size(0, qtText(text));
    return {static_cast<std::int32_t>(std::ceil(size.width() * kUnitsPerPixel)),
            static_cast<std::int32_t>(std::ceil(size.height() * kUnitsPerPixel))};
}

void RasterCanvas::paintPicture(MapPicture picture, CanvasPoint topLeft, CanvasSize size) {
    QPainter painter(&image_);
    constexpr double units = kUnitsPerPixel;
    drawMapPicture(
        painter,
        QRectF(topLeft.x / units, topLeft.y / units, size.width / units, size.height / units),
        picture);
}

Picture RasterCanvas::picture() const {
    Picture picture{image_.width(), image_.height(), {}};
    picture.pixels.reserve(static_cast<std::size_t>(image_.width()) *
                           static_cast<std::size_t>(image_.height()));
    for (int row = 0; row < image_.height(); ++row) {
        const auto* const pixels =
            reinterpret_cast<const std::uint32_t*>(image_.constScanLine(row));
        picture.pixels.insert(picture.pixels.end(), pixels, pixels + image_.width());
    }
    return picture;
}

void RasterCanvas::paintSnapshot(CanvasPoint offset) {
    clear();
    QPainter painter(&image_);
    painter.drawImage(QPointF(offset.x, offset.y) / kUnitsPerPixel, snapshot_);
}

void RasterCanvas::refresh() {
    if (onRefresh) {
        onRefresh();
    }
}

void RasterCanvas::setPointer(PointerShape shape) {
    if (onPointer) {
        onPointer(shape);
    }
}

void drawMapPicture(QPainter& painter, const QRectF& rectangle, MapPicture picture) {
    // One arrow head pointing up in a square of side 1 about the origin, turned as needed.
    const QPolygonF head({{0, -0.42}, {0.46, 0.36}, {0, 0.16}, {-0.46, 0.36}});
    double turn = 0;
    switch (picture) {
    case MapPicture::ArrowUp:
        turn = 0;
        break;
    case MapPicture::ArrowRight:
        turn = 90;
        break;
    case MapPicture::ArrowDown:
        turn = 180;
        break;
    case MapPicture::ArrowLeft:
        turn = 270;
        break;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rectangle.center());
    painter.scale(rectangle.width(), rectangle.height());
    painter.rotate(turn);
    QPen edge(QColor(255, 255, 255));
    edge.setWidthF(1.5);
    edge.setCosmetic(true);
    painter.setPen(edge);
    painter.setBrush(QColor(46, 92, 58));
    painter.drawPolygon(head);
    painter.restore();
}

}  // namespace campora
