// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ostream>

#include "cli/arguments.h"

namespace campora {

/// Where a command prints what was asked for, and what a window would show in boxes.
struct Console {
    std::ostream& out;
    std::ostream& boxes;
};

/// What a program hands back to the one who started it.
namespace exit_status {
inline constexpr int kDone = 0;
/// A file was refused or an output could not be written; the rest was done.
inline constexpr int kRefused = 1;
inline constexpr int kWrongCommandLine = 2;
}  // namespace exit_status

/// Each command answers its exit status.

/// What the main window would hold after opening the files.
[[nodiscard]] int runInfo(const Arguments& arguments, const Console& console);
/// The whole map as a picture. Without a map no picture is written.
[[nodiscard]] int runRender(const Arguments& arguments, const Console& console);
/// The map in another format. Without a map nothing is written.
[[nodiscard]] int runExport(const Arguments& arguments, const Console& console);
/// Track files as polygon shapefiles, one after another.
[[nodiscard]] int runExportTrack(const Arguments& arguments, const Console& console);
/// A report as a text table.
[[nodiscard]] int runReportToText(const Arguments& arguments, const Console& console);
/// The points of all tracks in the GLG point format.
[[nodiscard]] int runGlg(const Arguments& arguments, const Console& console);
/// A grid for a console from the zones of shapefiles.
[[nodiscard]] int runPrescribe(const Arguments& arguments, const Console& console);
/// A lot of the vertices of the command line.
[[nodiscard]] int runLot(const Arguments& arguments, const Console& console);
/// The union of the lots of several files; prints the files that hold it.
[[nodiscard]] int runMerge(const Arguments& arguments, const Console& console);
/// The work orders of a folder; copies the files of one when the command line says so.
[[nodiscard]] int runOrders(const Arguments& arguments, const Console& console);
/// As `runInfo` for the files that a project lists.
[[nodiscard]] int runProject(const Arguments& arguments, const Console& console);
/// What jobs applied beside what a prescription, the first of the files, says.
[[nodiscard]] int runCompare(const Arguments& arguments, const Console& console);
/// The passes of the jobs, one a row.
[[nodiscard]] int runPasses(const Arguments& arguments, const Console& console);
/// The problems of the jobs, one a row, in order of time.
[[nodiscard]] int runProblems(const Arguments& arguments, const Console& console);
/// What was covered once, again and not at all, by file and together.
[[nodiscard]] int runCoverage(const Arguments& arguments, const Console& console);

}  // namespace campora
