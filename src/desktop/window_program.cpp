// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/window_program.h"

#include <cstdlib>
#include <string>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSocketNotifier>

#include "app/data_folder.h"
#include "app/start_up.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

/// The command line, with whole paths: the title shows them, and a file is known again whichever
/// way it comes.
StartRequest startRequest() {
    std::vector<std::string> arguments;
    for (const QString& argument : QApplication::arguments().mid(1)) {
        const bool isPath = !argument.startsWith('-');
        arguments.push_back(toUtf8(isPath ? QFileInfo(argument).absoluteFilePath() : argument));
    }
    return parseCommandLine(arguments);
}

std::string programPath() {
    return toUtf8(QDir::toNativeSeparators(QApplication::applicationFilePath()));
}

}  // namespace

WindowProgram::WindowProgram()
    : window_({dialogs_, settings_, locale_, clipboard_, clock_, classes_, shell_},
              Language::Spanish, dataFolderOf(toUtf8(QApplication::applicationDirPath()))),
      widgetTexts_(window_.session().texts()) {
    dialogs_.attach(window_, window_.session().texts());
    QApplication::installTranslator(&widgetTexts_);
    window_.start(programPath(), startRequest());
    window_.show();
}

WindowProgram::~WindowProgram() {
    QApplication::removeTranslator(&widgetTexts_);
}

void WindowProgram::endWith(const InterruptionWatch& watch) {
    if (watch.descriptor() < 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(watch.descriptor(), QSocketNotifier::Read, &window_);
    QObject::connect(notifier, &QSocketNotifier::activated, &window_, [this, notifier] {
        notifier->setEnabled(false);
        unloadMainWindow(window_.session());
        // Ends the loops of all open dialogs too, as if they were cancelled; none opens after it.
        QCoreApplication::exit(EXIT_FAILURE);
    });
}

}  // namespace campora
