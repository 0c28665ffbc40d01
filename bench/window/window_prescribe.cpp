// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT
//
// How long a PRE of four channels over the large map of zones takes with its progress window. On
// the screen of DISPLAY where there is one, else off the screen.

#include <algorithm>
#include <iostream>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>

#include "desktop/platform/qt_dialogs.h"
#include "desktop/platform/qt_locale.h"
#include "desktop/widgets/look.h"
#include "platform/quiet_dialogs.h"
#include "presc/generation.h"
#include "presc/layer_zones.h"
#include "support/shared_samples.h"
#include "support/temp_folder.h"

namespace {

using namespace campora;

constexpr int kRuns = 5;
constexpr int kCellMetres = 4;

/// Answers by itself, and shows the real progress window.
class ProgressAlone final : public QuietDialogs {
public:
    ProgressAlone(QWidget& window, const Texts& texts) { shown_.attach(window, texts); }

    [[nodiscard]] std::unique_ptr<Progress> progress(std::string_view caption) override {
        return shown_.progress(caption);
    }

private:
    QtDialogs shown_;
};

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const auto map = sharedSample("samples/presc/spreadmap.shp");
    if (!map) {
        std::cout << "the map is not there\n";
        return 0;
    }
    QApplication application(argc, argv);
    applyLook();
    QMainWindow window;
    window.show();
    const Texts texts;
    const QtLocale locale;
    ProgressAlone dialogs(window, texts);
    GphPresc layer;
    if (!layer.loadFromFile(*map, {dialogs, texts, locale})) {
        return 1;
    }
    layer.setColumnaDosis(3);
    const std::vector<ChannelZones> channels(kMostChannels, zonesOf(layer));
    const TempFolder folder;
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer timer;
        timer.start();
        if (!generatePRE(folder.file("a.pre"), kCellMetres, channels, {dialogs, texts, locale})) {
            return 1;
        }
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::cout << "a PRE of four channels with its progress window, median of " << kRuns << ": "
              << times[kRuns / 2] << " ms\n";
    return 0;
}
