// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "base/files.h"
#include "base/texts.h"
#include "model/file_gph_group.h"
#include "model/value_ranges.h"
#include "platform/desk.h"
#include "work/registrations.h"
#include "work/work_kind.h"

namespace campora {

/// A desk that knows who carries which logger.
struct WorkDesk : Desk {
    const Registrations& registrations;
};

/// What a reader made of one file. Nothing of it counts until the file has been added to the list.
struct LoadedWork {
    std::unique_ptr<FileGphGroup> group;
    /// Of this file's records.
    ValueRanges ranges;
    /// Kind of machine, from reports alone.
    std::optional<WorkKind> kind;
    /// Whether a point without flow was seen, from track files alone.
    std::optional<bool> hasFlowStops;
};

/// Each reader opens one file, reports what is wrong with it through the dialogs and answers none
/// then; a swath width or a number of columns that the file lacks is asked for.

/// Logger track file with the summary beside it.
[[nodiscard]] std::optional<LoadedWork> loadTrackFile(std::string_view path, const WorkDesk& desk);
/// Binary report: current form, older forms with eight and with four fields.
[[nodiscard]] std::optional<LoadedWork> loadRptFile(std::string_view path, const WorkDesk& desk);
/// Tab-separated text table of a report, with 4 or 8 columns.
[[nodiscard]] std::optional<LoadedWork> loadRptTextTable(std::string_view path,
                                                         const WorkDesk& desk);

/// The same for bytes that have been read already; `path` stands in messages and names the file.
/// A track file's summary is read from beside that path. They throw `FormatError` for a file that
/// breaks its format.
[[nodiscard]] std::optional<LoadedWork> readTrackFile(std::string_view path, const FileBytes& bytes,
                                                      const WorkDesk& desk);
[[nodiscard]] std::optional<LoadedWork> readRptFile(std::string_view path, const FileBytes& bytes,
                                                    const WorkDesk& desk);
[[nodiscard]] std::optional<LoadedWork>
readRptTextTable(std::string_view path, const FileBytes& bytes, const WorkDesk& desk);

}  // namespace campora
