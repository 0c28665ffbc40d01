// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/page_painter.h"

#include <algorithm>
#include <cmath>

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>

#include "paint/raster_canvas.h"
#include "paint/shown_text.h"

namespace campora {

namespace {

constexpr double kMmPerInch = 25.4;
constexpr double kMostPixels = 36e6;
/// The painter's units in a millimetre: fonts have whole sizes in them.
constexpr double kUnits = 100;

constexpr double kFrameLine = 0.3 * kUnits;
constexpr double kThinLine = 0.15 * kUnits;
constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kGrey = 0xFF4A5560;

QRectF units(const PageRect& rect) {
    return {rect.x * kUnits, rect.y * kUnits, rect.width * kUnits, rect.height * kUnits};
}

QFont qtFont(PageFont font) {
    QFont made;
    made.setPixelSize(std::max(1, static_cast<int>(std::lround(font.emMm * kUnits))));
    made.setBold(font.bold);
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}

/// Names of files stand on maps and pages too.
Qt::Alignment alignment(PageAlign align) {
    switch (align) {
    case PageAlign::Left:
        return Qt::AlignLeft;
    case PageAlign::Centre:
        return Qt::AlignHCenter;
    case PageAlign::Right:
        break;
    }
    return Qt::AlignRight;
}

void paintTexts(QPainter& painter, const PageLayout& page) {
    for (const PageText& text : page.texts) {
        painter.setFont(qtFont(text.font));
        painter.setPen(QColor(text.ink == PageInk::Black ? kBlack : kGrey));
        painter.drawText(units(text.place),
                         static_cast<int>(alignment(text.align) | Qt::AlignVCenter) |
                             Qt::TextDontClip | Qt::TextSingleLine,
                         shownText(text.text));
    }
}

void paintSwatches(QPainter& painter, const PageLayout& page) {
    painter.setPen(QPen(QColor(kBlack), kThinLine));
    for (const auto& [place, color] : page.swatches) {
        painter.setBrush(QColor(color.red(), color.green(), color.blue()));
        painter.drawRect(units(place));
    }
}

void paintBar(QPainter& painter, const PageLayout& page) {
    painter.setPen(QPen(QColor(kBlack), kThinLine));
    const QRectF bar = units(page.bar);
    for (int i = 0; i < page.barParts; ++i) {
        const double width = bar.width() / page.barParts;
        painter.setBrush(QColor(i % 2 == 0 ? kBlack : qRgb(255, 255, 255)));
        painter.drawRect(QRectF(bar.x() + i * width, bar.y(), width, bar.height()));
    }
}

/// An arrow head, its right half filled.
void paintNorth(QPainter& painter, const PageLayout& page) {
    const QRectF place = units(page.northArrow);
    const double half = place.width() * 0.35;
    const QPointF tip(place.center().x(), place.top());
    const QPointF notch(tip.x(), place.top() + place.height() * 0.75);
    const double foot = place.bottom();
    painter.setPen(QPen(QColor(kBlack), kThinLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(QPolygonF({tip, notch, QPointF(tip.x() - half, foot)}));
    painter.setBrush(QColor(kBlack));
    painter.drawPolygon(QPolygonF({tip, notch, QPointF(tip.x() + half, foot)}));
}

}  // namespace

TextWidth pageTextWidth() {
    return [](std::string_view text, PageFont font) {
        return QFontMetricsF(qtFont(font)).horizontalAdvance(shownText(text)) / kUnits;
    };
}

QImage pageMapPicture(const PageLayout& page, CanvasSize canvas, int dotsPerInch,
                      const DrawPageMap& draw) {
    const double inches = page.map.width * page.map.height / (kMmPerInch * kMmPerInch);
    const double dots = std::min<double>(dotsPerInch, std::sqrt(kMostPixels / inches));
    const double unitsPerInch = kUnitsPerPageMm * kMmPerInch;
    RasterCanvas raster(canvas, dots * RasterCanvas::kUnitsPerPixel / unitsPerInch);
    if (raster.image().isNull() || !draw(raster)) {
        return {};
    }
    return raster.image();
}

void paintPage(QPainter& painter, double dotsPerMm, const PageLayout& page, const QImage& map) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    painter.scale(dotsPerMm / kUnits, dotsPerMm / kUnits);
    painter.drawImage(units(page.map), map);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(kBlack), kThinLine));
    painter.drawRect(units(page.map));
    const double line = page.titleLine * kUnits;
    painter.drawLine(QPointF(page.frame.x * kUnits, line),
                     QPointF(page.frame.right() * kUnits, line));
    painter.setPen(QPen(QColor(kBlack), kFrameLine));
    painter.drawRect(units(page.frame));
    paintSwatches(painter, page);
    paintBar(painter, page);
    paintNorth(painter, page);
    paintTexts(painter, page);
    painter.restore();
}

std::string pagePdf(const PageLayout& page, const QImage& map, const PdfNames& names) {
    constexpr int kResolution = 1200;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kResolution);
        writer.setTitle(shownText(names.title));
        writer.setCreator(shownText(names.program));
        const QSizeF sheet(page.sheet.width, page.sheet.height);
        writer.setPageLayout(
            QPageLayout(QPageSize(sheet, QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
                        QPageLayout::Portrait, QMarginsF()));
        QPainter painter(&writer);
        paintPage(painter, kResolution / kMmPerInch, page, map);
    }
    return bytes.toStdString();
}

}  // namespace campora
