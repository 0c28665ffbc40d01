// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <gmock/gmock.h>

#include "desktop/widgets/look.h"

/// Window tests run off the screen, whatever display there is.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    campora::applyLook();
    return RUN_ALL_TESTS();
}
