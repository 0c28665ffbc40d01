// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/strip_painter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QLine>
#include <QPainter>
#include <QVector>

namespace campora {

namespace {

constexpr QColor kAlarm(0xD3, 0x2F, 0x2F);

/// Rows of a lane, the upper one first.
using Rows = std::pair<int, int>;

Rows rowsOf(const SeriesRange& range, double top, const QRect& lane) {
    const auto row = [&](float value) {
        const double part = std::clamp(static_cast<double>(value) / top, 0.0, 1.0);
        return lane.bottom() - static_cast<int>(std::lround(part * (lane.height() - 1)));
    };
    return {row(range.greatest), row(range.least)};
}

/// From the rows of each column to those of its neighbour, so that a curve has no holes.
QVector<QLine> curve(const QRect& lane, const StripPicture& picture,
                     SeriesRange SeriesColumn::*value, double top) {
    QVector<QLine> lines;
    lines.reserve(static_cast<int>(picture.columns.size()));
    std::optional<Rows> before;
    int x = lane.left();
    for (const SeriesColumn& column : picture.columns) {
        const SeriesRange& range = column.*value;
        if (range.empty()) {
            before.reset();
        } else {
            const Rows rows = rowsOf(range, top, lane);
            Rows drawn = rows;
            if (before) {
                drawn.first = std::min(drawn.first, before->second);
                drawn.second = std::max(drawn.second, before->first);
            }
            lines.append(QLine(x, drawn.first, x, drawn.second));
            before = rows;
        }
        ++x;
    }
    return lines;
}

QRect spanOf(const StripHoles::Span& span, const QRect& lanes) {
    constexpr int kLeast = 3;
    const int left = lanes.left() + static_cast<int>(std::lround(span.first));
    const int right = lanes.left() + static_cast<int>(std::lround(span.second));
    return {left, lanes.top(), std::max(right - left, kLeast), lanes.height()};
}

}  // namespace

void paintHoles(QPainter& painter, const QRect& lanes, const StripPicture& picture,
                const QPalette& palette) {
    QColor shade = palette.color(QPalette::Text);
    shade.setAlpha(35);
    painter.setPen(QPen(palette.color(QPalette::Text), 1, Qt::DotLine));
    for (const StripHoles::Span& fold : picture.folds) {
        const QRect at = spanOf(fold, lanes);
        painter.fillRect(at, shade);
        painter.drawLine(at.topLeft(), at.bottomLeft());
        painter.drawLine(at.topRight(), at.bottomRight());
    }
    QColor ink = palette.color(QPalette::Text);
    ink.setAlpha(170);
    for (const StripHoles::Span& gap : picture.missing) {
        painter.fillRect(spanOf(gap, lanes), QBrush(ink, Qt::BDiagPattern));
    }
}

void paintDose(QPainter& painter, const QRect& lane, const StripPicture& picture,
               const QPalette& palette) {
    const QColor strong = palette.color(QPalette::Highlight);
    QColor light = strong;
    light.setAlpha(70);
    QVector<QLine> below;
    int x = lane.left();
    for (const SeriesColumn& column : picture.columns) {
        if (!column.dose.empty()) {
            const Rows rows = rowsOf(column.dose, picture.doseTop, lane);
            if (rows.second < lane.bottom()) {
                below.append(QLine(x, rows.second, x, lane.bottom()));
            }
        }
        ++x;
    }
    painter.setPen(light);
    painter.drawLines(below);
    painter.setPen(strong);
    painter.drawLines(curve(lane, picture, &SeriesColumn::dose, picture.doseTop));
}

void paintSpecified(QPainter& painter, const QRect& lane, const StripPicture& picture,
                    const QColor& ink) {
    painter.setPen(ink);
    painter.drawLines(curve(lane, picture, &SeriesColumn::specified, picture.doseTop));
}

void paintSpeed(QPainter& painter, const QRect& lane, const StripPicture& picture,
                const QColor& ink) {
    painter.setPen(ink);
    painter.drawLines(curve(lane, picture, &SeriesColumn::speed, picture.speedTop));
}

void paintAlarms(QPainter& painter, const QRect& lane, const StripPicture& picture) {
    QVector<QLine> lines;
    int x = lane.left();
    for (const SeriesColumn& column : picture.columns) {
        if (column.alarms != 0) {
            lines.append(QLine(x, lane.top(), x, lane.bottom()));
        }
        ++x;
    }
    painter.setPen(kAlarm);
    painter.drawLines(lines);
}

}  // namespace campora
