// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include <QApplication>
#include <QTimer>

#include "desktop/main_window.h"
#include "desktop/widgets/look.h"
#include "desktop/window_program.h"
#include "support/temp_folder.h"

namespace campora {

/// Runs the program with settings of its own, on the screen where there is one. Once its window
/// stands, it opens a report there, calls `measure`, and ends.
inline int measureWindow(int argc, char** argv, const std::string& report,
                         const std::function<void(MainWindow&)>& measure) {
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const TempFolder folder;
    qputenv("XDG_CONFIG_HOME", folder.path().c_str());
    qputenv("XDG_DATA_HOME", folder.path().c_str());
    QApplication application(argc, argv);
    applyLook();
    WindowProgram program;
    MainWindow& window = program.window();
    QTimer::singleShot(500, &window, [&] {
        window.openPaths({folder.write("lote.rpt", report)}, true);
        measure(window);
        QCoreApplication::quit();
    });
    return QApplication::exec();
}

}  // namespace campora
