// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <memory>
#include <optional>
#include <utility>

#include "app/out/export_formats.h"
#include "app/out/map_export.h"
#include "base/file_endings.h"
#include "base/interruption.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/whole_map.h"
#include "paint/picture_file.h"
#include "paint/raster_canvas.h"

namespace campora {

namespace {

int exportWith(const Arguments& arguments, const Console& console, MapCanvas* canvas) {
    BatchMap batch(arguments, console.boxes);
    const bool all = batch.openFiles();
    OpenMap& map = batch.map();
    if (map.files().empty() || isInterrupted()) {
        return exit_status::kRefused;
    }
    const ExportFormat& format = *arguments.exportFormat;
    ExportMeans means{today()};
    std::optional<WholeMap> whole;
    if (canvas != nullptr) {
        whole.emplace(map, *canvas, arguments);
        means.picture = [&whole] { return whole->picture(true); };
        means.savePicture = savePicture;
    }
    // A set of files is named by its shapefile, whatever was typed; any other file has its name.
    const std::string path = format.ending == kShapeEnding
                                 ? pathForFormat(arguments.output, format.ending)
                                 : arguments.output;
    const bool written = MapExport(map, std::move(means)).exportMap(format, path);
    return all && written ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace

int runExport(const Arguments& arguments, const Console& console) {
    if (arguments.exportFormat->source != ExportSource::Picture) {
        return exportWith(arguments, console, nullptr);
    }
    const OffscreenApplication application;
    RasterCanvas canvas(canvasSize(arguments.size));
    return exportWith(arguments, console, &canvas);
}

int runReportToText(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    const MapExport exporter(batch.map(), {today()});
    const std::string& source = arguments.files.front();
    const std::unique_ptr<File> report = exporter.readReport(source);
    const ExportFormat& format = textFormats()[arguments.comma ? 1 : 0];
    const bool written =
        report != nullptr && exporter.writeReport(*report, source, format, arguments.output);
    return written ? exit_status::kDone : exit_status::kRefused;
}

int runGlg(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    const bool all = batch.openFiles();
    const bool written = !isInterrupted() && !batch.map().files().empty() &&
                         MapExport(batch.map(), {today()}).exportGlg(arguments.output);
    return all && written ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
