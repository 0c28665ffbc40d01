// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/program.h"

#include <string>
#include <vector>

#include <QApplication>
#include <QFileInfo>

#include "app/data_folder.h"
#include "desktop/qt_text.h"

namespace campora {

namespace {

std::vector<std::string> pathsOf(const QStringList& arguments) {
    std::vector<std::string> paths;
    for (const QString& argument : arguments.mid(1)) {
        // Whole paths: the title shows them, and a file is known again whichever way it comes.
        paths.push_back(toUtf8(QFileInfo(argument).absoluteFilePath()));
    }
    return paths;
}

}  // namespace

Program::Program()
    : window_({dialogs_, settings_, locale_, clipboard_, clock_, classes_}, locale_.language(),
              dataFolderOf(toUtf8(QApplication::applicationDirPath()))),
      widgetTexts_(window_.session().texts()) {
    dialogs_.attach(window_, window_.session().texts());
    QApplication::installTranslator(&widgetTexts_);
    window_.start(pathsOf(QApplication::arguments()));
    window_.show();
}

Program::~Program() {
    QApplication::removeTranslator(&widgetTexts_);
}

}  // namespace campora
