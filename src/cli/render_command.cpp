// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/compare_commands.h"
#include "app/findings/map_coverage.h"
#include "base/file_endings.h"
#include "base/interruption.h"
#include "base/paths.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/whole_map.h"
#include "paint/picture_file.h"
#include "paint/raster_canvas.h"

namespace campora {

namespace {

/// The prescription of a picture of deviations, into whose mode it puts the map; none, and told,
/// when there is nothing to compare.
std::optional<ReadPrescription> comparedWith(const std::string& plan, BatchMap& batch) {
    std::optional<ReadPrescription> read = readPrescription(plan, batch.desk());
    if (!read) {
        return std::nullopt;
    }
    const DoseSource* const source = read->prescription.source;
    const auto plansOf = [source](const File& /*job*/) {
        return OpenPrescription{{}, {}, false, source, nullptr};
    };
    if (!batch.map().showModeLayer(ColorMode::Deviation,
                                   deviationMode(plansOf, std::make_shared<NetWorks>()))) {
        batch.desk().tell({TextId::CompareNothingWorked, {}});
        return std::nullopt;
    }
    return read;
}

}  // namespace

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
    std::optional<ReadPrescription> plan;
    if (arguments.style.mode == ColorMode::Deviation) {
        plan = comparedWith(arguments.plan, batch);
        if (!plan) {
            return exit_status::kRefused;
        }
    }
    if (arguments.style.mode == ColorMode::Coverage &&
        !map.showModeLayer(ColorMode::Coverage, makeCoverageMode)) {
        batch.desk().tell({TextId::NoAppliedWork, {}});
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
