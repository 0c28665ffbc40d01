// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QGuiApplication>

#include "app/session.h"
#include "cli/arguments.h"
#include "platform/map_canvas.h"

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

/// Everything has been loaded with the usual looks; the whole map is now drawn as the options say,
/// without its scale bar and arrows.
void drawWholeMap(Session& session, const Arguments& arguments);

}  // namespace campora
