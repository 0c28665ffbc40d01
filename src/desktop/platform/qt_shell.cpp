// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/qt_shell.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QUrl>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

/// The toolkit would answer that all is well as soon as the desktop has been asked.
bool openFile(const QString& path) {
    constexpr int kPatienceMs = 2000;
    // Without an owner: what it opens goes on when this program ends.
    auto* const desktop = new QProcess;  // deletes itself when it ends
    QObject::connect(desktop, &QProcess::finished, desktop, &QObject::deleteLater);
    desktop->setStandardOutputFile(QProcess::nullDevice());
    desktop->setStandardErrorFile(QProcess::nullDevice());
    desktop->start("xdg-open", {path});
    if (!desktop->waitForStarted()) {
        desktop->deleteLater();
        return false;
    }
    // Some desktops answer only when the opened program ends: that one runs.
    const bool ended = desktop->waitForFinished(kPatienceMs);
    return !ended || (desktop->exitStatus() == QProcess::NormalExit && desktop->exitCode() == 0);
}

#else

bool openFile(const QString& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

#endif

}  // namespace

bool QtShell::open(std::string_view path) {
    return openFile(QDir::fromNativeSeparators(toQt(path)));
}

}  // namespace campora
