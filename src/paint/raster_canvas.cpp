// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/raster_canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include "paint/parallel.h"
#include "paint/shown_text.h"

namespace campora {

namespace {

constexpr int kTextPixels = 12;
constexpr int kPartsPerWorker = 2;
/// A ring of more corners is hardly ever a single row or column of pixels.
constexpr std::size_t kMostStripCorners = 8;
/// From one stroke of a hatch to the next, in logical pixels.
constexpr double kHatch = 8;

std::uint32_t pixel(Color color) {
    return qRgb(color.red(), color.green(), color.blue());
}

QFont mapFont(bool bold) {
    QFont font;
    font.setPixelSize(kTextPixels);
    font.setBold(bold);
    return font;
}

/// Names of files stand on maps and pages too.
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
    return {
        pixels,          image_.width(),
        image_.height(), image_.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(std::uint32_t)),
        firstRow_,       endRow_};
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

std::optional<PixelFill> RasterCanvas::fill() const {
    switch (fillStyle_) {
    case FillStyle::Transparent:
        return std::nullopt;
    case FillStyle::Hatched:
        return PixelFill(pixel(fillColor_),
                         std::max(4, static_cast<int>(std::lround(kHatch * pixelRatio_))));
    case FillStyle::Solid:
        break;
    }
    return PixelFill(pixel(fillColor_));
}

void RasterCanvas::drawRings(std::span<const std::span<const CanvasPoint>> rings,
                             const std::optional<PixelFill>& fill, FillRule rule, Color outline) {
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
        filler_.fill(pixels, rings_, *fill, rule);
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
    drawRings(std::span(&ring, 1), filled ? std::optional<PixelFill>(pixel(color)) : std::nullopt,
              FillRule::NonZero, color);
}

void RasterCanvas::point(CanvasPoint at, Color color) {
    lines_.line(grid(), toPixels(at), toPixels(at), pen(color));
}

void RasterCanvas::polygon(std::span<const CanvasPoint> ring) {
    const bool isPlain = penPixels_ == 1 && penStyle_ == PenStyle::Solid &&
                         fillStyle_ == FillStyle::Solid && penColor_ == fillColor_;
    if (isPlain && ring.size() <= kMostStripCorners) {
        points_.clear();
        std::transform(ring.begin(), ring.end(), std::back_inserter(points_),
                       [this](CanvasPoint point) { return toPixels(point); });
        if (fillStrip(grid(), points_, pixel(fillColor_))) {
            return;  // a step of a dense job from afar
        }
    }
    drawRings(std::span(&ring, 1), fill(), FillRule::NonZero, penColor_);
}

void RasterCanvas::polyPolygon(std::span<const std::span<const CanvasPoint>> rings) {
    drawRings(rings, fill(), FillRule::EvenOdd, penColor_);
}

void RasterCanvas::clipToPart(QPainter& painter) const {
    if (endRow_ < image_.height() || firstRow_ > 0) {
        painter.setClipRect(QRectF(0, firstRow_ / pixelRatio_, image_.width() / pixelRatio_,
                                   (endRow_ - firstRow_) / pixelRatio_));
    }
}

void RasterCanvas::text(CanvasPoint at, std::string_view text, TextAnchor anchor, bool bold) {
    QPainter painter(&image_);
    clipToPart(painter);
    painter.setFont(mapFont(bold));
    painter.setPen(QColor::fromRgb(pixel(penColor_)));
    const QFontMetricsF metrics(painter.font());
    const QString shown = shownText(text);
    double x = static_cast<double>(at.x) / kUnitsPerPixel;
    if (anchor == TextAnchor::TopCentre) {
        x -= metrics.horizontalAdvance(shown) / 2;
    }
    const double baseline = static_cast<double>(at.y) / kUnitsPerPixel + metrics.ascent();
    painter.drawText(QPointF(x, baseline), shown);
}

CanvasSize RasterCanvas::textSize(std::string_view text, bool bold) const {
    const QFontMetricsF metrics(mapFont(bold));
    const QSizeF size = metrics.size(0, shownText(text));
    return {static_cast<std::int32_t>(std::ceil(size.width() * kUnitsPerPixel)),
            static_cast<std::int32_t>(std::ceil(size.height() * kUnitsPerPixel))};
}

void RasterCanvas::paintPicture(MapPicture picture, CanvasPoint topLeft, CanvasSize size) {
    QPainter painter(&image_);
    clipToPart(painter);
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

void RasterCanvas::paintSnapshot(CanvasPoint offset, double factor) {
    clear();
    QPainter painter(&image_);
    const QPointF corner = QPointF(offset.x, offset.y) / kUnitsPerPixel;
    if (factor == 1) {
        painter.drawImage(corner, snapshot_);
        return;
    }
    const QSizeF size = QSizeF(snapshot_.size()) / snapshot_.devicePixelRatio();
    painter.drawImage(QRectF(corner, size * factor), snapshot_);
}

RasterCanvas::RasterCanvas(const RasterCanvas& whole, std::uint32_t* pixels, int firstRow,
                           int endRow)
    : size_(whole.size_),
      pixelsPerUnit_(whole.pixelsPerUnit_),
      pixelRatio_(whole.pixelRatio_),
      image_(reinterpret_cast<uchar*>(pixels), whole.image_.width(), whole.image_.height(),
             whole.image_.bytesPerLine(), whole.image_.format()),
      firstRow_(firstRow),
      endRow_(endRow),
      background_(whole.background_),
      penColor_(whole.penColor_),
      fillColor_(whole.fillColor_),
      penWidth_(whole.penWidth_),
      penPixels_(whole.penPixels_),
      penStyle_(whole.penStyle_),
      fillStyle_(whole.fillStyle_) {
    image_.setDevicePixelRatio(pixelRatio_);
}

void RasterCanvas::drawInParts(const DrawPart& draw) {
    const int workers = workerCount();
    // More parts than threads: the work is seldom spread evenly over the map.
    const int parts = std::min(workers > 1 ? kPartsPerWorker * workers : 1, image_.height());
    if (parts < 2) {
        draw(*this, {0, size_.height});
        return;
    }
    std::uint32_t* const pixels = grid().pixels;
    const auto rowOf = [&](int part) {
        return static_cast<int>(std::int64_t{image_.height()} * part / parts);
    };
    inParallel(parts, [&](int part) {
        RasterCanvas own(*this, pixels, rowOf(part), rowOf(part + 1));
        const double unitsPerPixel = 1 / pixelsPerUnit_;
        draw(own, {static_cast<std::int32_t>(std::floor(rowOf(part) * unitsPerPixel)),
                   static_cast<std::int32_t>(std::ceil(rowOf(part + 1) * unitsPerPixel))});
    });
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
