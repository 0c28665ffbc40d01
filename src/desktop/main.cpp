// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <QApplication>

#include "desktop/look.h"
#include "desktop/program.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    campora::applyLook();
    campora::Program program;
    return QApplication::exec();
}
