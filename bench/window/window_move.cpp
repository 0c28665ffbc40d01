// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT
//
// How many pictures a second the map shows while the wheel turns and while it is dragged, over a
// job of a million records, and the longest wait between two of them. On the screen of DISPLAY
// where there is one, else off the screen.

#include <algorithm>
#include <functional>
#include <iostream>

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWheelEvent>

#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "window/large_report.h"
#include "window/measured_window.h"

namespace {

using namespace campora;

constexpr int kRecords = 1'000'000;
/// Milliseconds between two events of a mouse, and of the whole movement.
constexpr int kEventMs = 8;
constexpr int kMovementMs = 3000;

/// Counts the pictures that a widget shows.
class Pictures final : public QObject {
public:
    explicit Pictures(QWidget& shown) { shown.installEventFilter(this); }

    void begin() {
        count_ = 0;
        longestMs_ = 0;
        since_.start();
    }
    void tell(const char* movement, double seconds) const {
        std::cout << movement << ": " << count_ / seconds << " pictures a second, longest wait "
                  << longestMs_ << " ms\n";
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++count_;
            longestMs_ = std::max(longestMs_, since_.restart());
        }
        return false;
    }

private:
    QElapsedTimer since_;
    qint64 longestMs_ = 0;
    int count_ = 0;
};

/// Calls `move` with 0, 1, 2... as a mouse would, and lets the window work in between.
void during(const char* movement, Pictures& pictures, const std::function<void(int)>& move) {
    QElapsedTimer timer;
    timer.start();
    pictures.begin();
    for (int i = 0; timer.elapsed() < kMovementMs; ++i) {
        move(i);
        do {
            QApplication::processEvents(QEventLoop::AllEvents, 1);
        } while (timer.elapsed() < (i + 1) * kEventMs);
    }
    pictures.tell(movement, static_cast<double>(timer.elapsed()) / 1000);
}

void measure(MapWidget& map) {
    Pictures pictures(map);
    const QPointF middle = map.rect().center();
    during("wheel", pictures, [&](int i) {
        const int turn = i / 8 % 2 == 0 ? 120 : -120;
        QWheelEvent event(middle, map.mapToGlobal(middle), {}, {0, turn}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&map, &event);
    });
    const auto mouse = [&](QEvent::Type type, QPointF at, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, map.mapToGlobal(at), Qt::MiddleButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(&map, &event);
    };
    mouse(QEvent::MouseButtonPress, middle, Qt::MiddleButton);
    during("drag", pictures, [&](int i) {
        mouse(QEvent::MouseMove, middle + QPointF(i % 200, i % 150), Qt::MiddleButton);
    });
    mouse(QEvent::MouseButtonRelease, middle, Qt::NoButton);
}

}  // namespace

int main(int argc, char** argv) {
    return measureWindow(argc, argv, largeReport(kRecords),
                         [](MainWindow& window) { measure(window.mapArea().map()); });
}
