// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_endings.h"
#include "base/interruption.h"
#include "base/paths.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/whole_map.h"
#include "paint/picture_file.h"
#include "paint/raster_canvas.h"

namespace campora {

int runRender(const Arguments& arguments, const Console& console) {
    const OffscreenApplication application;
    RasterCanvas canvas(canvasSize(arguments.size));
    BatchMap batch(arguments, console.boxes);
    const bool all = batch.openFiles();
    OpenMap& map = batch.map();
    if (map.files().empty() || isInterrupted()) {
        return exit_status::kRefused;
    }
    if (const auto refused = map.filesInUse().whyNotTarget(arguments.output)) {
        batch.desk().tell(*refused);
        return exit_status::kRefused;
    }
    WholeMap whole(map, canvas, arguments);
    const PictureForm form =
        pathEnding(arguments.output) == kBmpEnding ? PictureForm::Bmp : PictureForm::Png;
    if (const auto failure =
            savePicture(whole.picture(arguments.overlay), arguments.output, form)) {
        batch.desk().tell(*failure);
        return exit_status::kRefused;
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
