// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "desktop/platform/qt_text.h"

namespace campora {

void QtClipboard::setText(std::string_view text) {
    QGuiApplication::clipboard()->setText(toQt(text));
}

void QtClipboard::setPicture(const Picture& picture) {
    const QImage image(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width,
                       picture.height, QImage::Format_RGB32);
    QGuiApplication::clipboard()->setImage(image.copy());  // the picture is the caller's
}

}  // namespace campora
