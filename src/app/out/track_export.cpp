// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/track_export.h"

#include <algorithm>
#include <vector>

#include "base/paths.h"
#include "export/track_shapefile_writer.h"
#include "work/gph_track.h"
#include "work/swath_groups.h"

namespace campora {

namespace {

std::vector<const GphTrack*> passesOf(const File& work) {
    std::vector<const GphTrack*> passes;
    for (const Gph* const layer : work.File_gphList()) {
        if (const auto* const pass = dynamic_cast<const GphTrack*>(layer)) {
            passes.push_back(pass);
        }
    }
    return passes;
}

BoundingBox boxOf(const std::vector<const GphTrack*>& passes) {
    BoundingBox box;
    for (const GphTrack* const pass : passes) {
        if (!pass->empty()) {
            box.addGph(*pass);
        }
    }
    return box;
}

void exportPass(const GphTrack& pass, const TrackExportOptions& options, std::vector<LonLat>& ring,
                TrackShapefileWriter& shapes) {
    const auto most = static_cast<std::size_t>(
        std::clamp(options.polygonLength, kShortestPolygon, kLongestPolygon));
    std::size_t step = 0;
    while (const auto group = nextSwathGroup(pass, step, most, options.onlySprayed)) {
        collectSwathRing(pass, *group, ring);
        shapes.add({ring, group->sumSpeed, group->sumFlow, static_cast<std::int32_t>(group->steps),
                    group->swathMetres});
        step = group->first + group->steps;
        if (shapes.hasFailed()) {
            return;
        }
    }
}

}  // namespace

std::optional<Failure> exportTrack(const File& work, std::string_view basePath,
                                   const TrackExportOptions& options) {
    const std::vector<const GphTrack*> passes = passesOf(work);
    TrackShapefileWriter shapes(basePath, boxOf(passes));
    std::vector<LonLat> ring;
    for (const GphTrack* const pass : passes) {
        exportPass(*pass, options, ring, shapes);
    }
    if (shapes.recordCount() == 0 && !shapes.hasFailed()) {
        return Failure{TextId::WorkWithoutSwaths, {}, {}};
    }
    return shapes.finish();
}

std::string shapeBaseOf(std::string_view trackPath) {
    const std::string ending = pathEnding(trackPath);
    const std::size_t cut = ending.starts_with('.') ? ending.size() : 0;
    return std::string(trackPath.substr(0, trackPath.size() - cut));
}

}  // namespace campora
