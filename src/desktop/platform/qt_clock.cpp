// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/qt_clock.h"

#include <chrono>

#include <QCoreApplication>
#include <QDate>
#include <QThread>

namespace campora {

std::uint32_t QtClock::ticks() const {
    using std::chrono::milliseconds;
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(std::chrono::duration_cast<milliseconds>(sinceStart).count());
}

void QtClock::sleep(std::uint32_t milliseconds) {
    QThread::msleep(milliseconds);
}

void QtClock::processEvents() {
    QCoreApplication::processEvents();
}

Date QtClock::today() const {
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), today.day()};
}

}  // namespace campora
