// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT
//
// How many elements a second a replay at full speed shows in the window, slider and map kept up to
// date. On the screen of DISPLAY where there is one, else off the screen.

#include <algorithm>
#include <iostream>
#include <vector>

#include <QElapsedTimer>

#include "window/large_report.h"
#include "window/measured_window.h"

namespace {

using namespace campora;

constexpr int kRecords = 50'000;
constexpr int kRuns = 5;

void measure(Session& session) {
    Replay& replay = session.replay();
    replay.setSpeed(0);
    std::vector<double> rates;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer timer;
        timer.start();
        replay.play();  // returns at the end
        rates.push_back(replay.shown().maximum / (static_cast<double>(timer.nsecsElapsed()) / 1e9));
    }
    std::sort(rates.begin(), rates.end());
    std::cout << "elements a second, median of " << kRuns << ": " << rates[kRuns / 2] << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    return measureWindow(argc, argv, largeReport(kRecords),
                         [](MainWindow& window) { measure(window.session()); });
}
