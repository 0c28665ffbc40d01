// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/files_in_use.h"

namespace campora {

struct ExportFormat;

/// Adds a file that is open, or was read, with those beside it that belong to it: a track's summary
/// and a summary's track, a report's edits, a prescription's report, the rest of a shapefile.
void addOpened(FilesInUse& files, std::string_view path);

/// The files that an export to `path` replaces.
[[nodiscard]] std::vector<std::string> targetsOf(const ExportFormat& format,
                                                 const std::string& path);

}  // namespace campora
