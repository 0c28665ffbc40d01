// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT
//
// How many times a second the time strip of a large job is scrolled and painted, and how long a
// move of the brush takes. On the screen of DISPLAY where there is one, else off the screen.

#include <algorithm>
#include <iostream>

#include <QElapsedTimer>

#include "desktop/widgets/side_panel.h"
#include "desktop/widgets/time_strip_view.h"
#include "window/large_report.h"
#include "window/measured_window.h"

namespace {

using namespace campora;

constexpr int kRecords = 1'000'000;
constexpr int kFrames = 300;

void measure(TimeStripView& view, TimeStrip& strip, int zoom) {
    strip.zoomAt(0, zoom);
    QElapsedTimer timer;
    timer.start();
    qint64 longest = 0;
    for (int frame = 0; frame < kFrames; ++frame) {
        QElapsedTimer one;
        one.start();
        strip.scroll(7);
        view.repaint();
        longest = std::max(longest, one.nsecsElapsed());
    }
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    std::cout << view.width() << " pixels, zoom " << zoom << ": " << kFrames / seconds
              << " frames a second, the longest " << static_cast<double>(longest) / 1e6 << " ms\n";
}

/// Brushes ever more of the job, as a drag does, and asks for the commands anew after each move.
void measureBrush(TimeStripView& view, TimeStrip& strip) {
    constexpr int kMoves = 100;
    strip.zoomAt(0, -100);
    qint64 whole = 0;
    qint64 longest = 0;
    for (int move = 1; move <= kMoves; ++move) {
        QElapsedTimer one;
        one.start();
        strip.brush(0, static_cast<double>(view.width()) * move / kMoves);
        view.repaint();
        QCoreApplication::processEvents();
        whole += one.nsecsElapsed();
        longest = std::max(longest, one.nsecsElapsed());
    }
    std::cout << "a move of the brush: " << static_cast<double>(whole) / kMoves / 1e6
              << " ms, the longest " << static_cast<double>(longest) / 1e6 << " ms\n";
}

}  // namespace

int main(int argc, char** argv) {
    return measureWindow(argc, argv, largeReport(kRecords), [](MainWindow& window) {
        window.resize(1366, 768);
        QCoreApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        window.toggleTimeStrip();
        QCoreApplication::processEvents();
        std::cout << "shown after " << timer.elapsed() << " ms\n";
        for (const int zoom : {1, 5, 15, 20}) {
            measure(*window.findChild<TimeStripView*>(), window.session().findings().timeStrip,
                    zoom);
        }
        TimeStrip& strip = window.session().findings().timeStrip;
        measureBrush(*window.findChild<TimeStripView*>(), strip);
        window.sidePanel().openProblems();
        QCoreApplication::processEvents();
        std::cout << "with the problems beside it, ";
        measureBrush(*window.findChild<TimeStripView*>(), strip);
    });
}
