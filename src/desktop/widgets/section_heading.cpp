// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/section_heading.h"

namespace campora {

void showAsHeading(QLabel& label) {
    label.setTextFormat(Qt::PlainText);
    label.setContentsMargins(2, 0, 2, 0);
    QFont bold = label.font();
    bold.setBold(true);
    label.setFont(bold);
    QPalette green = label.palette();
    green.setColor(QPalette::WindowText, green.color(QPalette::Link));
    label.setPalette(green);
}

SectionHeading::SectionHeading(QWidget& part) : part_(part) {
    setBuddy(&part);
    showAsHeading(*this);
}

void SectionHeading::setTitle(const QString& title) {
    setText(title);
    part_.setAccessibleName(title);
}

}  // namespace campora
