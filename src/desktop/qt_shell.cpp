// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/qt_shell.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

#include "desktop/qt_text.h"

namespace campora {

bool QtShell::open(std::string_view path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::fromNativeSeparators(toQt(path))));
}

}  // namespace campora
