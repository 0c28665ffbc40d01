// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/files_in_use.h"
#include "model/file.h"

namespace campora {

/// Adds a file that is open, or was read, with those beside it that belong to it: a track's summary
/// and a summary's track, a report's edits, a prescription's report, the rest of a shapefile.
void addOpened(FilesInUse& files, std::string_view path);

/// Adds what an open file was read or made from.
void addFileOf(FilesInUse& used, const File& file);

}  // namespace campora
