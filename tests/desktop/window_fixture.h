// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QAction>
#include <QTest>
#include <gtest/gtest.h>

#include "base/texts.h"
#include "desktop/main_window.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/file_list_view.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "desktop/widgets/side_panel.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/work_files.h"

namespace campora {

/// A main window off the screen, with scripted dialogs and an empty store of settings.
class WindowTest : public ::testing::Test {
protected:
    ScriptedDialogs dialogs;
    MemorySettings settings;
    FixedLocale locale;
    MemoryClipboard clipboard;
    ScriptedClock clock;
    MemoryClasses classes;
    ScriptedShell shell;
    TempFolder folder;
    std::unique_ptr<MainWindow> window;

    void SetUp() override { openWindow(Language::Spanish); }

    void openWindow(Language language) {
        window = std::make_unique<MainWindow>(
            Services{dialogs, settings, locale, clipboard, clock, classes, shell}, language,
            folder.path());
        window->start("/opt/campora/campora", {});
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    /// A report of one pass of 5 by 2.5 km that starts so far east of the origin.
    std::string writeReport(const std::string& name, double eastM = 0) const {
        RptBytes report(1);
        for (int i = 0; i < 100; ++i) {
            RptBytes::Record record;
            record.position = fixAt(eastM + 50.0 * i, 25.0 * i);
            record.swathCm = 4000;
            record.realTenths[0] = 900 + 10 * i;
            record.time.time.minute = i / 60;
            record.time.time.second = i % 60;
            report.add(record);
        }
        return folder.write(name, report.bytes());
    }

    void open(const std::vector<std::string>& paths) { window->openPaths(paths, true); }

    [[nodiscard]] FileListView& list() const { return window->sidePanel().files(); }
    [[nodiscard]] MapWidget& map() const { return window->mapArea().map(); }
    [[nodiscard]] MapView& view() const { return window->session().display().view(); }
    [[nodiscard]] ViewControls controls() const {
        return window->session().display().view().controls();
    }

    /// Names of the rows, from the top.
    [[nodiscard]] std::vector<std::string> rows() const {
        std::vector<std::string> names;
        for (int i = 0; i < list().count(); ++i) {
            names.push_back(toUtf8(list().item(i)->text()));
        }
        return names;
    }
    [[nodiscard]] QAction* action(TextId text) const {
        const QString shown = toQt(window->session().texts()(text));
        for (QAction* found : window->findChildren<QAction*>()) {
            if (found->text() == shown) {
                return found;
            }
        }
        ADD_FAILURE() << "no action " << toUtf8(shown);
        return nullptr;
    }
    /// The position on the map under a pixel of the map widget.
    [[nodiscard]] LonLat under(QPoint pixel) const {
        constexpr float units = RasterCanvas::kUnitsPerPixel;
        return view().transform().screenToMap(static_cast<float>(pixel.x()) * units,
                                              static_cast<float>(pixel.y()) * units);
    }
};

}  // namespace campora
