// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <string>
#include <vector>

#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/qt_clipboard.h"
#include "desktop/qt_dialogs.h"
#include "desktop/qt_locale.h"
#include "desktop/qt_settings_store.h"
#include "desktop/qt_text.h"
#include "desktop/widget_texts.h"

int main(int argc, char* argv[]) {
    using namespace campora;
    QApplication application(argc, argv);
    QApplication::setApplicationName("Campora");
    applyLook(application);

    QtSettingsStore settings;
    const QtLocale locale;
    QtClipboard clipboard;
    QtDialogs dialogs;
    MainWindow window({dialogs, settings, locale, clipboard}, locale.language(),
                      toUtf8(QApplication::applicationDirPath()));
    const Texts& texts = window.session().texts();
    dialogs.attach(window, texts);
    WidgetTexts widgetTexts(texts);
    QApplication::installTranslator(&widgetTexts);

    std::vector<std::string> paths;
    for (const QString& argument : QApplication::arguments().mid(1)) {
        paths.push_back(toUtf8(argument));
    }
    window.start(std::move(paths));
    window.show();
    return QApplication::exec();
}
