// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/export_formats.h"
#include "base/file_endings.h"
#include "base/interruption.h"
#include "cli/batch_platform.h"
#include "cli/commands.h"
#include "cli/whole_map.h"
#include "paint/picture_file.h"
#include "paint/raster_canvas.h"

namespace campora {

namespace {

int exportWith(MapCanvas& canvas, const Arguments& arguments, const Console& console) {
    BatchSession batch(arguments, canvas, console.boxes);
    const bool all = batch.openFiles();
    Session& session = batch.session();
    if (session.plotCount() == 0 || isInterrupted()) {
        return exit_status::kRefused;
    }
    const ExportFormat& format = *arguments.exportFormat;
    if (format.source == ExportSource::Picture) {
        session.exports().savePicture = savePicture;
        drawWholeMap(session, arguments);
    }
    // A set of files is named by its shapefile, whatever was typed; any other file has its name.
    const std::string path = format.ending == kShapeEnding
                                 ? pathForFormat(arguments.output, format.ending)
                                 : arguments.output;
    const bool written = session.exports().exportMap(format, path);
    return all && written ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace

int runExport(const Arguments& arguments, const Console& console) {
    if (arguments.exportFormat->source == ExportSource::Picture) {
        const OffscreenApplication application;
        RasterCanvas canvas(canvasSize(arguments.size));
        return exportWith(canvas, arguments, console);
    }
    NoCanvas canvas;
    return exportWith(canvas, arguments, console);
}

int runReportToText(const Arguments& arguments, const Console& console) {
    NoCanvas canvas;
    BatchSession batch(arguments, canvas, console.boxes);
    const ExportFormat& format = textFormats()[arguments.comma ? 1 : 0];
    const bool written =
        batch.session().exports().exportReport(arguments.files.front(), format, arguments.output);
    return written ? exit_status::kDone : exit_status::kRefused;
}

int runGlg(const Arguments& arguments, const Console& console) {
    NoCanvas canvas;
    BatchSession batch(arguments, canvas, console.boxes);
    const bool all = batch.openFiles();
    const bool written = !isInterrupted() && batch.session().plotCount() > 0 &&
                         batch.session().exports().exportGlg(arguments.output);
    return all && written ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
