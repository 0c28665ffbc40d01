// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/texts.h"
#include "platform/dialogs.h"
#include "work/work_reader.h"

namespace campora {

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
    std::optional<LoadedWork> (*read)(std::string_view path, const WorkReaderContext& context);
};

[[nodiscard]] std::span<const FileFormat> fileFormats();

/// The format that takes a path, or null when none does.
[[nodiscard]] const FileFormat* formatOf(std::string_view path);

/// "All supported files", a filter a format, "all files".
[[nodiscard]] std::vector<FileFilter> openFilters(const Texts& texts);

}  // namespace campora
