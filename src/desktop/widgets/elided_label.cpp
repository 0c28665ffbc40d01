// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "desktop/platform/qt_text.h"

namespace campora {

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const bool whole = fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           whole ? QString() : plainToolTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

}  // namespace campora
