// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace campora {

/// A console writes a job as two files in one folder: the track ("Log0001.nbr") and its summary
/// ("Wrk0001.txt").
struct CompanionNames {
    std::string summaryPath;
    std::string trackPath;
};

/// The pair that a path of either kind belongs to; both empty for other endings. The path's own
/// side stays as given. In the derived side the folder is kept and the file name comes out in lower
/// case but for the inserted "Wrk" or "Log". Whether the files exist is not looked at.
[[nodiscard]] CompanionNames companionNames(std::string_view path);

/// The summary that belongs to a file of any ending, in the upper and lower case it has on disk;
/// empty when it cannot be opened.
[[nodiscard]] std::string findLogForReport(std::string_view path);

}  // namespace campora
