// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/whole_map.h"

#include "app/plot_all.h"
#include "paint/raster_canvas.h"

namespace campora {

OffscreenApplication::OffscreenApplication() {
    if (QCoreApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_.emplace(count_, names_);
    }
}

CanvasSize canvasSize(PixelSize size) {
    return {size.width * RasterCanvas::kUnitsPerPixel, size.height * RasterCanvas::kUnitsPerPixel};
}

WholeMap::WholeMap(OpenMap& map, MapCanvas& canvas, const Arguments& arguments)
    : canvas_(canvas),
      view_(canvas, map.style(), [&map](MapContext& context) { plotAll(map, context); }) {
    MapStyle style = arguments.style;
    style.scale = map.style().scale;
    style.unitScale = map.style().unitScale;
    style.targetDose = arguments.aroundTarget ? arguments.target : std::nullopt;
    map.style() = style;
    if (style.selectedChannel >= 0) {
        selectChannel(map, style.selectedChannel);
    }
    map.refreshColorScale();
    view_.totalBound = boundOf(map);
    view_.fitView();
    view_.ZoomUno();
}

Picture WholeMap::picture(bool overlaid) {
    if (overlaid) {
        view_.DrawMap();
    }
    return canvas_.picture();
}

}  // namespace campora
