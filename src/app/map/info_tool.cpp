// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/info_tool.h"

#include <utility>

#include "app/map/text_plate.h"

namespace campora {

void InfoTool::release(CanvasPoint at) {
    std::optional<Hit> hit = find(at);
    if (!hit) {
        return;
    }
    map_.files().setCurrentFile(hit->file);
    display_.showCurrentFile();
    display_.loadFileList(true);
    if (onAsked_) {
        onAsked_(*hit->layer, hit->element);
    }
    if (!hit->text.empty()) {
        plate_ = textPlate(display_.canvas(), at, std::move(hit->text));
    }
}

std::optional<InfoTool::Hit> InfoTool::find(CanvasPoint at) const {
    const ViewTransform view = display_.view().transform();
    const MapStyle& style = map_.style();
    const Desk& desk = map_.desk();
    const LonLat position = view.screenToMap(static_cast<float>(at.x), static_cast<float>(at.y));
    for (int i = 0; i < map_.files().loadedCount(); ++i) {
        File& file = map_.files().file(i);
        for (const Gph* layer : file.File_gphList()) {
            const std::int32_t index = layer->Gph_mouseOver(view, style, position, 0);
            if (index >= 0) {
                return Hit{&file, layer, index,
                           layer->Gph_getInfo({desk.texts, desk.locale, style}, index)};
            }
        }
    }
    return std::nullopt;
}

void InfoTool::addShapes(MapOverlay& overlay) const {
    if (plate_) {
        overlay.emplace_back(*plate_);
    }
}

}  // namespace campora
