// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/find_in_files.h"

#include <variant>

#include "model/work_layer.h"
#include "work/gph_track.h"
#include "work/vex_alarmas.h"

namespace campora {

std::optional<WorkKind> workKindOf(const File& file) {
    for (const WorkLayer* layer : workLayers(file)) {
        const auto* const track = dynamic_cast<const GphTrack*>(layer);
        const auto* const reports =
            track == nullptr ? nullptr : std::get_if<GphTrack::RptRecords>(&track->records());
        if (reports != nullptr && !reports->empty()) {
            return reports->front().workKind();
        }
    }
    return std::nullopt;
}

FindingOptions findingOptions(const File& file, float errorLimit) {
    const std::optional<WorkKind> kind = workKindOf(file);
    return {errorLimit, -1, kind ? knownAlarms(*kind) : 0};
}

std::vector<Pass> passesOf(const File& file, float errorLimit) {
    return findPasses(workLayers(file), findingOptions(file, errorLimit));
}

Problems problemsOf(const File& file, float errorLimit) {
    return findProblems(workLayers(file), findingOptions(file, errorLimit));
}

}  // namespace campora
