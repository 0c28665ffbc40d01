// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT
//
// How long the tables of passes and problems of a large job take to be shown, sorted and gone
// through. On the screen of DISPLAY where there is one, else off the screen.

#include <algorithm>
#include <iostream>
#include <utility>

#include <QElapsedTimer>
#include <QTabWidget>

#include "desktop/widgets/finding_view.h"
#include "desktop/widgets/side_panel.h"
#include "window/large_report.h"
#include "window/measured_window.h"

namespace {

using namespace campora;

constexpr int kPasses = 10'000;
constexpr int kPerPass = 20;

/// Milliseconds of something and of the painting that follows.
template <typename Done>
double millisecondsOf(const Done& done) {
    QElapsedTimer timer;
    timer.start();
    done();
    QCoreApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void measure(MainWindow& window, FindingView& table, const char* name, FindingTable::Kind kind) {
    FindingCommands& findings = window.session().findings().tables;
    const double found = millisecondsOf([&] { static_cast<void>(findings.table(kind)); });
    auto* const tabs = window.sidePanel().findChild<QTabWidget*>();
    const double shown = millisecondsOf([&] { tabs->setCurrentWidget(&table); });
    double sorted = 0;
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            sorted = std::max(sorted, millisecondsOf([&] { table.sortByColumn(column, order); }));
        }
    }
    double stepped = 0;
    for (int row = 0; row < table.model()->rowCount(); row += table.model()->rowCount() / 20) {
        stepped = std::max(stepped, millisecondsOf([&] { table.selectRow(row); }));
    }
    std::cout << name << ": " << table.model()->rowCount() << " rows, found in " << found
              << " ms, shown in " << shown << " ms, sorted in at most " << sorted
              << " ms, a row selected in at most " << stepped << " ms\n";
}

}  // namespace

int main(int argc, char** argv) {
    return measureWindow(
        argc, argv, largeReport(kPasses * kPerPass, kPerPass), [](MainWindow& window) {
            window.resize(1366, 768);
            QCoreApplication::processEvents();
            measure(window, window.sidePanel().passes(), "passes", FindingTable::Kind::Passes);
            measure(window, window.sidePanel().problems(), "problems",
                    FindingTable::Kind::Problems);
        });
}
