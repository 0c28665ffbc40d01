// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <cstdlib>

#include <QApplication>

#include "base/disk_calls.h"
#include "base/interruption.h"
#include "desktop/widgets/look.h"
#include "desktop/window_program.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    campora::applyLook();
    campora::allowManyFiles();
    const campora::InterruptionWatch watch;
    campora::WindowProgram program;
    program.endWith(watch);
    // It may have been asked to stop while it opened its first files.
    const int status = campora::isInterrupted() ? EXIT_FAILURE : QApplication::exec();
    return campora::isInterrupted() ? EXIT_FAILURE : status;
}
