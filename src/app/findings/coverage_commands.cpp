// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/coverage_commands.h"

#include <algorithm>

#include "app/findings/map_coverage.h"
#include "model/work_layer.h"

namespace campora {

std::optional<TextId> CoverageCommands::whyNot() const {
    const std::vector<File*> files = map_.files().all();
    const bool hasWork = std::any_of(files.begin(), files.end(),
                                     [](const File* file) { return !workLayers(*file).empty(); });
    return hasWork ? std::nullopt : std::optional(TextId::NoAppliedWork);
}

void CoverageCommands::toggleMap() {
    const bool hadErrors = map_.style().mode == ColorMode::Error;
    if (isMapOn()) {
        map_.style().mode = ColorMode::Dose;
        map_.refreshColorScale();
    } else if (!map_.showModeLayer(ColorMode::Coverage, makeCoverageMode)) {
        map_.desk().tell({TextId::NoAppliedWork, {}});
        return;
    }
    if (hadErrors) {
        recalcErrorAreas(map_);
    }
    display_.showSummary();
    display_.showLegend();
    display_.styleChanged();
}

}  // namespace campora
