// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/coverage_commands.h"

#include <algorithm>

#include "app/findings/map_coverage.h"
#include "app/mode_switch.h"
#include "model/work_layer.h"

namespace campora {

std::optional<TextId> CoverageCommands::whyNot() const {
    if (isMapOn()) {
        return std::nullopt;  // it can be switched off, whatever has been closed
    }
    const std::vector<File*> files = map_.files().all();
    const bool hasSteps = std::any_of(files.begin(), files.end(), [](const File* file) {
        const std::vector<const WorkLayer*> work = workLayers(*file);
        return std::any_of(work.begin(), work.end(),
                           [](const WorkLayer* layer) { return layer->recordCount() > 1; });
    });
    return hasSteps ? std::nullopt : std::optional(TextId::NoAppliedWork);
}

void CoverageCommands::toggleMap() {
    if (!toggleModeLayer(map_, display_, ColorMode::Coverage, makeCoverageMode)) {
        map_.desk().tell({TextId::NoAppliedWork, {}});
    }
}

}  // namespace campora
