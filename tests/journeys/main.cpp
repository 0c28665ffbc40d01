// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <gtest/gtest.h>

#include "desktop/widgets/look.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    campora::applyLook();
    return RUN_ALL_TESTS();
}
