// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT
//
// How long the window takes from the start of its process until the map of a report stands on it:
// runs itself several times with a report of 100,000 records and prints the median.

#include <algorithm>
#include <iostream>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "desktop/window_program.h"
#include "support/temp_folder.h"
#include "window/large_report.h"

namespace {

using namespace campora;

constexpr int kRecords = 100'000;
constexpr int kRuns = 9;

/// Ends the program once the map has been painted with a file on it.
class QuitWhenDrawn : public QObject {
public:
    explicit QuitWhenDrawn(MainWindow& window) : window_(window) {
        window.mapArea().map().installEventFilter(this);
    }
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && window_.session().map().plotCount() > 0) {
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return false;
    }

private:
    MainWindow& window_;
};

int showReport(int argc, char** argv) {
    QApplication application(argc, argv);
    applyLook();
    WindowProgram program;
    const QuitWhenDrawn quit(program.window());
    return QApplication::exec();
}

/// Milliseconds of one run; negative when it failed.
double runOnce(const QString& program, const QString& report) {
    QProcess process;
    QElapsedTimer timer;
    timer.start();
    process.start(program, {report});
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
                       process.exitCode() == 0;
    return ended ? static_cast<double>(timer.nsecsElapsed()) / 1e6 : -1;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 1) {
        return showReport(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    const TempFolder folder;
    qputenv("XDG_CONFIG_HOME", folder.path().c_str());
    qputenv("XDG_DATA_HOME", folder.path().c_str());
    const QString report = toQt(folder.write("bench.rpt", largeReport(kRecords)));
    std::vector<double> runs;
    for (int i = 0; i < kRuns; ++i) {
        runs.push_back(runOnce(QCoreApplication::applicationFilePath(), report));
    }
    std::sort(runs.begin(), runs.end());
    if (runs.front() < 0) {
        std::cerr << "the window did not show the report\n";
        return 1;
    }
    std::cout << "window with a report of " << kRecords << " records: median " << runs[kRuns / 2]
              << " ms, fastest " << runs.front() << " ms, slowest " << runs.back() << " ms\n";
    return 0;
}
