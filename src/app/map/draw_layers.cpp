// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/draw_layers.h"

#include <algorithm>

#include "lots/gph_lote.h"

namespace campora {

bool areLotsAlone(std::span<const Gph* const> layers) {
    return std::all_of(layers.begin(), layers.end(), [](const Gph* layer) {
        return dynamic_cast<const GphLote*>(layer) != nullptr;
    });
}

void drawLayers(const MapContext& context, std::span<const Gph* const> layers) {
    const bool lotsAlone = areLotsAlone(layers);
    // The rhythm of a dotted line goes on from step to step: each part draws all that are in view.
    const bool isDotted = context.style.drawDotted;
    context.canvas.drawInParts([&](MapCanvas& part, CanvasRows rows) {
        const ViewTransform view = isDotted ? context.view : context.view.within(rows);
        MapContext own{part, view, context.style, context.leastOutlined, lotsAlone};
        for (const Gph* layer : layers) {
            layer->Gph_plot(own);
        }
        for (const Gph* layer : layers) {
            layer->plotOnTop(own);
        }
    });
}

}  // namespace campora
