// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/texts.h"
#include "model/file.h"
#include "platform/dialogs.h"
#include "work/work_kind.h"
#include "work/work_reader.h"

namespace campora {

/// A desk that knows in which colours the map is drawn, for the readers of all kinds of files.
struct ReadingDesk : WorkDesk {
    const MapColors& colors;
};

/// What a reader made of one file: as `LoadedWork`, with any kind of file.
struct OpenedFile {
    std::unique_ptr<File> file;
    std::optional<WorkKind> kind;
    std::optional<bool> hasFlowStops;
};

/// One kind of file that the program opens; the dialog filters and the dispatch come from the
/// table.
struct FileFormat {
    /// Lower-case ending with its dot; the last four characters of a path decide.
    std::string_view ending;
    TextId filterCaption{};
    /// Whether this reader sets up graduated colouring, as reports do.
    bool graduates = false;
    /// Whether its files come from a logging console, which "save as" copies.
    bool fromLogger = false;
    /// Reports what is wrong with the file and answers none then.
    std::optional<OpenedFile> (*read)(std::string_view path, const ReadingDesk& desk);
};

[[nodiscard]] std::span<const FileFormat> fileFormats();

/// The format of the path's ending, or null when it is that of none.
[[nodiscard]] const FileFormat* formatOf(std::string_view path);

/// The format by which a file is opened that the user chose: one with an ending of its own, else
/// the prescriptions, whose first bytes tell whether it is one.
[[nodiscard]] const FileFormat& formatToOpen(std::string_view path);

/// "All supported files", a filter a format, "all files".
[[nodiscard]] std::vector<FileFilter> openFilters(const Texts& texts);

}  // namespace campora
