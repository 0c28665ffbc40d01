// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/section_heading.h"

namespace campora {

SectionHeading::SectionHeading(QWidget& part) : part_(part) {
    setTextFormat(Qt::PlainText);
    setBuddy(&part);
    setContentsMargins(2, 0, 2, 0);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    QPalette green = palette();
    green.setColor(QPalette::WindowText, green.color(QPalette::Link));
    setPalette(green);
}

void SectionHeading::setTitle(const QString& title) {
    setText(title);
    part_.setAccessibleName(title);
}

}  // namespace campora
