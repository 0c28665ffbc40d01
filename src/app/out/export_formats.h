// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/open_map.h"
#include "base/dates.h"
#include "base/failure.h"
#include "base/texts.h"
#include "export/export_layers.h"
#include "export/export_progress.h"
#include "model/gph.h"
#include "platform/dialogs.h"
#include "platform/picture.h"

namespace campora {

/// Writes a picture to a file, whole or not at all.
using SavePicture = std::function<std::optional<Failure>(const Picture& picture,
                                                         std::string_view path, PictureForm form)>;

/// What an export takes from where it runs.
struct ExportMeans {
    /// Stands in some files.
    Date today;
    /// The map with its scale bar and arrows, for formats that are pictures.
    std::function<Picture()> picture = {};
    SavePicture savePicture = {};
};

/// What an export writes, and with what.
struct ExportRequest {
    const OpenMap& map;
    const ExportMeans& means;
    std::vector<Gph*> layers;
    /// With its ending.
    std::string path;
    ExportProgress& progress;
};

/// What a format is made of: the layers, or the picture of the map on a canvas.
enum class ExportSource { Layers, Picture };
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
    ExportSource source{};
    AfterExport after{};
    /// The layers of a table that has columns only when all of them have; null for others.
    std::vector<ExportLayer> (*tableLayers)(std::span<const Gph* const> layers) = nullptr;
    /// A map without anything for the format is a failure.
    std::optional<Failure> (*write)(const ExportRequest& request) = nullptr;
};

/// In the order of the save dialog.
[[nodiscard]] std::span<const ExportFormat> exportFormats();
/// Null for a word that is none.
[[nodiscard]] const ExportFormat* exportFormatOf(std::string_view word);
/// The two kinds of text tables, with the decimal point first.
[[nodiscard]] std::span<const ExportFormat> textFormats();

/// The files that an export to `path` replaces.
[[nodiscard]] std::vector<std::string> targetsOf(const ExportFormat& format,
                                                 const std::string& path);

/// The layers for whose sake a table does without the columns of the others.
[[nodiscard]] std::vector<const Gph*> layersWithoutColumns(const ExportFormat& format,
                                                           const std::vector<Gph*>& layers);

/// A row for each format.
[[nodiscard]] std::vector<FileFilter> exportFilters(std::span<const ExportFormat> formats,
                                                    const Texts& texts);

/// The path as it is when it ends in `ending` (".kml") in any case; else with `ending` in place of
/// that of another format, or behind the name. A path without a name stays as it is.
[[nodiscard]] std::string pathForFormat(std::string_view path, std::string_view ending);

}  // namespace campora
