// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/plot_all.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "app/map/draw_layers.h"
#include "app/map/place_marks.h"
#include "model/work_layer.h"
#include "presc/gph_presc.h"
#include "presc/grid_layer.h"

namespace campora {

namespace {

bool isPrescribed(const Gph* layer) {
    return dynamic_cast<const GridLayer*>(layer) != nullptr ||
           dynamic_cast<const GphPresc*>(layer) != nullptr;
}

std::vector<const Gph*> layersFromBelow(const OpenMap& map, const File* without) {
    std::vector<File*> files = map.files().all();
    std::reverse(files.begin(), files.end());
    std::vector<const Gph*> all;
    for (const File* file : files) {
        if (file != without) {
            const std::vector<Gph*> layers = file->File_gphList();
            all.insert(all.end(), layers.begin(), layers.end());
        }
    }
    if (const ModeLayer* const mode = map.modeLayer()) {
        // Where the lowest of the work lies: grids under it stay there, lots over it too.
        const auto isWork = [](const Gph* layer) {
            return dynamic_cast<const WorkLayer*>(layer) != nullptr;
        };
        auto place = std::find_if(all.begin(), all.end(), isWork) - all.begin();
        if (map.style().mode == ColorMode::Deviation) {
            // What was prescribed would hide what is told about it.
            const auto last = std::find_if(all.rbegin(), all.rend(), isPrescribed);
            place = std::max(place, all.rend() - last);
        }
        all.insert(all.begin() + place, &mode->layer());
        std::erase_if(all, isWork);
    }
    return all;
}

void markPlaces(const OpenMap& map, const MapContext& context) {
    std::vector<MarkedPlace> places;
    for (const File* file : map.files().all()) {
        places.push_back({file->File_bound(), file->File_name()});
    }
    drawPlaceMarks(context, places, map.desk().texts);
}

}  // namespace

void plotAll(const OpenMap& map, const MapContext& context, const File* without) {
    drawLayers(context, layersFromBelow(map, without));
    markPlaces(map, context);
}

bool plotAll(const OpenMap& map, MapContext context, Progress& progress) {
    const std::vector<const Gph*> layers = layersFromBelow(map, nullptr);
    context.lotsAlone = areLotsAlone(layers);
    int reported = -1;
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const int percent = static_cast<int>(100 * i / layers.size());
        if (percent != std::exchange(reported, percent) && !progress.report(percent)) {
            return false;
        }
        layers[i]->Gph_plot(context);
    }
    for (const Gph* layer : layers) {
        layer->plotOnTop(context);
    }
    markPlaces(map, context);
    return true;
}

}  // namespace campora
