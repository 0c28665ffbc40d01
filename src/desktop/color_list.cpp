// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/color_list.h"

#include <QPainter>

#include "desktop/qt_text.h"

namespace campora {

namespace {

constexpr QSize kSwatch{28, 14};

QIcon swatch(Color color, double pixelRatio) {
    QPixmap picture(kSwatch * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    const QColor fill(color.red(), color.green(), color.blue());
    picture.fill(fill);
    QPainter painter(&picture);
    painter.setPen(fill.darker(140));
    painter.drawRect(0, 0, kSwatch.width() - 1, kSwatch.height() - 1);
    painter.end();
    QIcon icon;
    // The colour means something: a selected or disabled row must not tint it.
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected, QIcon::Disabled}) {
        icon.addPixmap(picture, mode);
    }
    return icon;
}

}  // namespace

ColorList::ColorList(QWidget* parent) : QListWidget(parent) {
    setIconSize(kSwatch);
    setUniformItemSizes(true);
    setSpacing(1);
}

void ColorList::setRows(std::span<const LegendRow> rows) {
    clear();
    for (const LegendRow& row : rows) {
        new QListWidgetItem(swatch(row.color, devicePixelRatioF()), toQt(row.text), this);
    }
}

int ColorList::fullHeight() const {
    const int rowHeight = count() > 0 ? sizeHintForRow(0) + 2 * spacing() : 0;
    return count() * rowHeight + 2 * frameWidth();
}

}  // namespace campora
