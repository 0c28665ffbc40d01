// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/program.h"

namespace campora {

int runProgram(std::span<const std::string> arguments, const std::string& dataFolder,
               const Console& console) {
    const Texts texts(languageOf(arguments));
    if (asksForHelp(arguments)) {
        console.out << usage(texts);
        return exit_status::kDone;
    }
    Result<Arguments> parsed = parseArguments(arguments);
    if (!parsed) {
        console.boxes << texts.sentence(parsed.failure()) << "\n\n" << usage(texts);
        return exit_status::kWrongCommandLine;
    }
    if (parsed->programFolder.empty()) {
        parsed->programFolder = dataFolder;
    }
    switch (parsed->command) {
    case Command::Info:
        return runInfo(*parsed, console);
    case Command::Render:
        break;
    }
    return runRender(*parsed, console);
}

}  // namespace campora
