// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "base/texts.h"
#include "export/export_progress.h"
#include "model/gph.h"
#include "platform/dialogs.h"
#include "platform/picture.h"

namespace campora {

class Session;

/// Writes a picture to a file, whole or not at all.
using SavePicture = std::function<std::optional<Failure>(const Picture& picture,
                                                         std::string_view path, PictureForm form)>;

/// What an export writes, and with what.
struct ExportJob {
    const Session& session;
    std::vector<Gph*> layers;
    /// With its ending.
    std::string path;
    /// For formats that are pictures.
    const SavePicture& savePicture;
    ExportProgress& progress;
};

/// What a map must hold to be written in a format: its writer decides that, or one of these.
enum class ExportNeeds { Nothing, Polygons, Points, Picture };
/// What happens with a file that has been written.
enum class AfterExport { Nothing, AskToOpen, Open };

/// A form in which the map can be written; save dialog, batch program and commands come from the
/// table.
struct ExportFormat {
    /// In the batch program.
    std::string_view word;
    /// Lower case, with its dot.
    std::string_view ending;
    /// In the save dialog.
    TextId caption{};
    ExportNeeds needs{};
    AfterExport after{};
    std::optional<Failure> (*write)(const ExportJob& job) = nullptr;
};

/// In the order of the save dialog.
[[nodiscard]] std::span<const ExportFormat> exportFormats();
/// Null for a word that is none.
[[nodiscard]] const ExportFormat* exportFormatOf(std::string_view word);
/// The two kinds of text tables, with the decimal point first.
[[nodiscard]] std::span<const ExportFormat> textFormats();

/// A row for each format.
[[nodiscard]] std::vector<FileFilter> exportFilters(std::span<const ExportFormat> formats,
                                                    const Texts& texts);

/// Why the layers cannot be written in a format; none when they can.
[[nodiscard]] std::optional<Failure> whyNothingToExport(std::span<Gph* const> layers,
                                                        ExportNeeds needs);

/// The path as it is when it ends in `ending` (".kml") in any case; else with `ending` in place of
/// that of another format, or behind the name.
[[nodiscard]] std::string pathForFormat(std::string_view path, std::string_view ending);

}  // namespace campora
