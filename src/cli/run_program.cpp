// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/run_program.h"

#include "base/interruption.h"
#include "base/plain_text.h"
#include "cli/parse_arguments.h"

namespace campora {

namespace {

int runCommand(const Arguments& arguments, const Console& console) {
    switch (arguments.command) {
    case Command::Info:
        return runInfo(arguments, console);
    case Command::Render:
        return runRender(arguments, console);
    case Command::Export:
        return runExport(arguments, console);
    case Command::ExportTrack:
        return runExportTrack(arguments, console);
    case Command::ReportToText:
        return runReportToText(arguments, console);
    case Command::Glg:
        return runGlg(arguments, console);
    case Command::Prescribe:
        return runPrescribe(arguments, console);
    case Command::Lot:
        return runLot(arguments, console);
    case Command::Merge:
        return runMerge(arguments, console);
    case Command::Orders:
        return runOrders(arguments, console);
    case Command::Compare:
        return runCompare(arguments, console);
    case Command::Passes:
        return runPasses(arguments, console);
    case Command::Problems:
        return runProblems(arguments, console);
    case Command::Coverage:
        return runCoverage(arguments, console);
    case Command::Project:
        break;
    }
    return runProject(arguments, console);
}

}  // namespace

int runProgram(std::span<const std::string> arguments, const std::string& dataFolder,
               const Console& console) {
    const Texts texts(languageOf(arguments));
    if (asksForHelp(arguments)) {
        console.out << usage(texts);
        return exit_status::kDone;
    }
    Result<Arguments> parsed = parseArguments(arguments);
    if (!parsed) {
        console.boxes << plainLine(texts.sentence(parsed.failure())) << "\n\n" << usage(texts);
        return exit_status::kWrongCommandLine;
    }
    if (parsed->programFolder.empty()) {
        parsed->programFolder = dataFolder;
    }
    const int status = runCommand(*parsed, console);
    if (isInterrupted() && status != exit_status::kDone) {
        console.boxes << texts(TextId::Cancelled) << '\n';
    }
    console.out.flush();
    return console.out ? status : exit_status::kRefused;
}

}  // namespace campora
