// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/info_box.h"

#include "desktop/platform/qt_text.h"

namespace campora {

InfoBox::InfoBox(QWidget* parent) : QLabel(parent) {
    setObjectName("txtInfo");
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAlignment(Qt::AlignCenter);
    // The program measured the text as the canvas writes it.
    QFont small = font();
    small.setPixelSize(12);
    setFont(small);
    // It lies over the map, and what is done there is meant for the map.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void InfoBox::showInfo(const TextPlate* plate, int unitsPerPixel) {
    setVisible(plate != nullptr);
    if (plate == nullptr) {
        return;
    }
    setText(shownText(plate->text).remove('\r').trimmed());
    const auto pixels = [unitsPerPixel](int units) { return units / unitsPerPixel; };
    setGeometry(pixels(plate->topLeft.x), pixels(plate->topLeft.y), pixels(plate->size.width),
                pixels(plate->size.height));
    raise();
}

}  // namespace campora
