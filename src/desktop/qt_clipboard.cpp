// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "desktop/qt_text.h"

namespace campora {

void QtClipboard::setText(std::string_view text) {
    QGuiApplication::clipboard()->setText(toQt(text));
}

}  // namespace campora
