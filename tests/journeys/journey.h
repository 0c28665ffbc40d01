// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <string>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/file_list_view.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "desktop/widgets/side_panel.h"
#include "desktop/window_program.h"
#include "support/temp_folder.h"

namespace campora {

/// The real window on a real screen, with the program's own dialogs and settings.
class Journey : public testing::Test {
protected:
    /// Settings of its own for each journey.
    TempFolder settingsFolder;
    std::unique_ptr<WindowProgram> program;

    void SetUp() override {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           toQt(settingsFolder.path()));
        start();
    }

    void start() {
        program.reset();
        program = std::make_unique<WindowProgram>();
        ASSERT_TRUE(becomesActive(window()));
        ASSERT_TRUE(QTest::qWaitFor([this] { return map().hasFocus(); }));
    }

    /// Waits until the keys go there, however busy the machine is.
    [[nodiscard]] static bool becomesActive(QWidget& widget) {
        return QTest::qWaitForWindowActive(&widget, 30000);
    }
    [[nodiscard]] MainWindow& window() const { return program->window(); }
    [[nodiscard]] Session& session() const { return window().session(); }
    [[nodiscard]] MapWidget& map() const { return window().mapArea().map(); }

    /// Does something in the next dialog that opens; the test fails when none does.
    template <typename Dialog>
    void inNextDialog(std::function<void(Dialog&)> act) {
        auto* poll = new QTimer(&window());
        QObject::connect(poll, &QTimer::timeout, poll, [poll, act] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                poll->stop();
                poll->deleteLater();
                act(*dialog);
                if (HasFatalFailure()) {
                    QApplication::closeAllWindows();  // else a box would wait for ever
                }
            }
        });
        poll->start(20);
    }

    void choose(const char* action) {
        auto* found = window().findChild<QAction*>(action);
        ASSERT_NE(found, nullptr) << action;
        ASSERT_TRUE(found->isEnabled()) << action;
        found->trigger();
    }
    void click(const char* button) {
        auto* found = window().findChild<QAbstractButton*>(button);
        ASSERT_NE(found, nullptr) << button;
        QTest::mouseClick(found, Qt::LeftButton);
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&map(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&map(), (from + to) / 2);
        QTest::mouseMove(&map(), to);
        // The screen's own pointer may lag behind: the release carries the place.
        QTest::mouseRelease(&map(), Qt::LeftButton, {}, to);
    }
    /// Types the path in the next file dialog.
    void giveFile(const std::string& path) {
        inNextDialog<QFileDialog>([path](QFileDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>();
            name->setText(toQt(path));  // typing opens a list of names over the dialog
            QTest::keyClick(name, Qt::Key_Return);
        });
    }
    void openByDialog(const std::string& path) {
        giveFile(path);
        QTest::keyClick(&map(), Qt::Key_O, Qt::ControlModifier);
    }
    [[nodiscard]] bool statusShows(const QString& text) const {
        for (const QLabel* label : window().statusBar()->findChildren<QLabel*>()) {
            if (label->text().contains(text)) {
                return true;
            }
        }
        return false;
    }
};

}  // namespace campora
