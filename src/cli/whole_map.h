// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QGuiApplication>

#include "app/map_view.h"
#include "app/open_map.h"
#include "cli/arguments.h"
#include "platform/map_canvas.h"
#include "platform/picture.h"

namespace campora {

/// What Qt needs before it draws a text; it asks for no display.
class OffscreenApplication {
public:
    OffscreenApplication();

private:
    // Qt keeps references to these.
    int count_ = 1;
    char name_[12] = "campora-cli";
    char* names_[2] = {name_, nullptr};
    std::optional<QGuiApplication> application_;
};

[[nodiscard]] CanvasSize canvasSize(PixelSize size);

/// The whole of an open map on a canvas, with the looks of the command line.
class WholeMap {
public:
    /// Draws it. Both outlive this.
    WholeMap(OpenMap& map, MapCanvas& canvas, const Arguments& arguments);

    /// As drawn, with the scale bar and arrows when `overlaid`.
    [[nodiscard]] Picture picture(bool overlaid);

private:
    MapCanvas& canvas_;
    MapView view_;
};

}  // namespace campora
