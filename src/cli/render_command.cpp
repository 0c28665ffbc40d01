// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_endings.h"
#include "base/interruption.h"
#include "base/paths.h"
#include "cli/batch_platform.h"
#include "cli/commands.h"
#include "cli/whole_map.h"
#include "paint/picture_file.h"
#include "paint/raster_canvas.h"

namespace campora {

int runRender(const Arguments& arguments, const Console& console) {
    const OffscreenApplication application;
    RasterCanvas canvas(canvasSize(arguments.size));
    BatchSession batch(arguments, canvas, console.boxes);
    const bool all = batch.openFiles();
    Session& session = batch.session();
    if (session.plotCount() == 0 || isInterrupted()) {
        return exit_status::kRefused;
    }
    if (const auto refused = session.filesInUse().whyNotTarget(arguments.output)) {
        console.boxes << oneLine(session.texts().sentence(*refused)) << '\n';
        return exit_status::kRefused;
    }
    drawWholeMap(session, arguments);
    if (arguments.overlay) {
        session.view().DrawMap();
    }
    const PictureForm form =
        pathEnding(arguments.output) == kBmpEnding ? PictureForm::Bmp : PictureForm::Png;
    if (const auto failure = savePicture(canvas.picture(), arguments.output, form)) {
        console.boxes << oneLine(session.texts().sentence(*failure)) << '\n';
        return exit_status::kRefused;
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
