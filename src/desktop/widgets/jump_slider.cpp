// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/jump_slider.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyleOptionSlider>

namespace campora {

void JumpSlider::mousePressEvent(QMouseEvent* event) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto rect = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_Slider, &option, part, this);
    };
    const QRect handle = rect(QStyle::SC_SliderHandle);
    if (event->button() != Qt::LeftButton || handle.contains(event->pos())) {
        QSlider::mousePressEvent(event);
        return;
    }
    const QRect groove = rect(QStyle::SC_SliderGroove);
    const int along = event->pos().x() - groove.x() - handle.width() / 2;
    const int clicked = QStyle::sliderValueFromPosition(
        minimum(), maximum(), along, groove.width() - handle.width(), option.upsideDown);
    {
        const QSignalBlocker silent(this);
        setValue(clicked);
        QSlider::mousePressEvent(event);  // takes hold of the handle, which is there now
    }
    emit jumped(clicked);
}

}  // namespace campora
