// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <iostream>
#include <string>
#include <vector>

#include <QCoreApplication>

#include "app/data_folder.h"
#include "base/disk_calls.h"
#include "base/interruption.h"
#include "cli/run_program.h"

namespace {

/// The command line as UTF-8. Elsewhere than on Windows a name may hold any bytes, which must not
/// go through a decoder.
std::vector<std::string> commandLine([[maybe_unused]] int argc, [[maybe_unused]] char* argv[]) {
    std::vector<std::string> arguments;
#ifdef _WIN32
    for (const QString& argument : QCoreApplication::arguments()) {
        arguments.push_back(argument.toStdString());
    }
#else
    arguments.assign(argv, argv + argc);
#endif
    if (!arguments.empty()) {
        arguments.erase(arguments.begin());
    }
    return arguments;
}

struct Start {
    std::vector<std::string> arguments;
    std::string dataFolder;
};

Start start(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    return {commandLine(argc, argv),
            campora::dataFolderOf(QCoreApplication::applicationDirPath().toStdString())};
}

}  // namespace

int main(int argc, char* argv[]) {
    // Standard error is for the boxes of the program; what Qt remarks about the desktop is none.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const Start begin = start(argc, argv);
    campora::allowManyFiles();
    const campora::InterruptionWatch watch;
    return campora::runProgram(begin.arguments, begin.dataFolder, {std::cout, std::cerr});
}
