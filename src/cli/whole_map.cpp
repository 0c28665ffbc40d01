// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/whole_map.h"

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

void drawWholeMap(Session& session, const Arguments& arguments) {
    MapStyle style = arguments.style;
    style.scale = session.style().scale;
    style.unitScale = session.style().unitScale;
    session.style() = style;
    if (style.selectedChannel >= 0) {
        session.modes().mnuColorScaleSelCH(style.selectedChannel);  // prescriptions turn to it too
    } else {
        session.refreshColorScale();
    }
    session.view().ZoomUno();
}

}  // namespace campora
