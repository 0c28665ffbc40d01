// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/color_list.h"

#include <algorithm>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include "desktop/platform/qt_color.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr QSize kSwatch{28, 14};

QIcon swatch(Color color, double pixelRatio) {
    QPixmap picture(kSwatch * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    const QColor fill = toQt(color);
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
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { emit rowOpened(row(item)); });
}

void ColorList::setRows(std::span<const LegendRow> rows, const QString& unit,
                        const QString& colorForm) {
    const int current = currentRow();
    clear();
    for (const LegendRow& row : rows) {
        auto* item =
            new QListWidgetItem(swatch(row.color, devicePixelRatioF()), toQt(row.text), this);
        const QString said = unit.isEmpty() ? item->text() : item->text() + ' ' + unit;
        item->setToolTip(plainToolTip(said));
        item->setData(Qt::AccessibleTextRole, said);
        item->setData(Qt::AccessibleDescriptionRole,
                      colorForm.arg(toQt(row.color).name().toUpper()));
    }
    if (current >= 0) {
        setCurrentRow(std::min(current, count() - 1));
    }
}

void ColorList::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool isOpen = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isOpen && currentRow() >= 0) {
        emit rowOpened(currentRow());
    } else if (key == Qt::Key_Menu ||
               (key == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)) {
        askMenuOfRow();
    } else {
        QListWidget::keyPressEvent(event);
    }
}

void ColorList::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        askMenuOfRow();
    } else {
        emit menuAsked(indexAt(event->pos()).row(), event->globalPos());
    }
}

void ColorList::askMenuOfRow() {
    const QRect place = currentRow() >= 0 ? visualItemRect(currentItem()) : viewport()->rect();
    emit menuAsked(currentRow(), viewport()->mapToGlobal(place.center()));
}

int ColorList::fullHeight() const {
    const int rowHeight = count() > 0 ? sizeHintForRow(0) + 2 * spacing() : 0;
    return count() * rowHeight + 2 * frameWidth();
}

}  // namespace campora
