// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <variant>
#include <vector>

#include "base/color.h"
#include "platform/map_canvas.h"

namespace campora {

/// Outlined with dashes.
struct DashedBox {
    CanvasPoint topLeft;
    CanvasSize size;

    bool operator==(const DashedBox&) const = default;
};

struct ThinLine {
    CanvasPoint from;
    CanvasPoint to;

    bool operator==(const ThinLine&) const = default;
};

/// A small frame around a place.
struct MarkFrame {
    CanvasPoint middle;

    bool operator==(const MarkFrame&) const = default;
};

/// A stretch that is picked out, visible on every colour.
struct HaloLine {
    std::vector<CanvasPoint> points;

    bool operator==(const HaloLine&) const = default;
};

/// A closed ring whose vertices can be moved.
struct HandledRing {
    std::vector<CanvasPoint> vertices;
    /// In the middle of its sides, where a new vertex can be pulled out.
    std::vector<CanvasPoint> handles;
    Color color;
    /// Filled with the colour; else only outlined.
    bool filled = false;

    bool operator==(const HandledRing&) const = default;
};

/// Lines of text on a plate of their own.
struct TextPlate {
    CanvasPoint topLeft;
    CanvasSize size;
    /// Lines ended by CR LF.
    std::string text;

    bool operator==(const TextPlate&) const = default;
};

/// Something that lies over the map without being drawn on it. Canvas units.
using MapShape = std::variant<HandledRing, DashedBox, ThinLine, MarkFrame, TextPlate, HaloLine>;

/// The lowest comes first. A text plate lies above everything; there is one at most.
using MapOverlay = std::vector<MapShape>;

}  // namespace campora
