// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#ifdef Q_OS_WIN
#include "desktop/platform/windows_classes.h"
#else
#include "desktop/platform/freedesktop_classes.h"
#endif
#include "base/interruption.h"
#include "desktop/main_window.h"
#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_clock.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/platform/qt_locale.h"
#include "desktop/platform/qt_settings_store.h"
#include "desktop/platform/qt_shell.h"
#include "desktop/platform/widget_texts.h"

namespace campora {

/// The program that has a window, unlike the batch program: its main window with everything that it
/// needs of the desktop. The application object exists already.
class WindowProgram {
public:
    /// Shows the window; the paths of the command line are opened when it stands on the screen.
    WindowProgram();
    ~WindowProgram();
    WindowProgram(const WindowProgram&) = delete;
    WindowProgram& operator=(const WindowProgram&) = delete;

    [[nodiscard]] MainWindow& window() { return window_; }

    /// When the program is asked to stop, it does: no question keeps it, what is under way is
    /// cancelled, and what was being written is cleared away. `watch` outlives it.
    void endWith(const InterruptionWatch& watch);

private:
    QtSettingsStore settings_;
    QtLocale locale_;
    QtClipboard clipboard_;
    QtClock clock_;
    QtShell shell_;
#ifdef Q_OS_WIN
    WindowsClasses classes_;
#else
    FreedesktopClasses classes_;
#endif
    QtDialogs dialogs_;
    MainWindow window_;
    WidgetTexts widgetTexts_;
};

}  // namespace campora
