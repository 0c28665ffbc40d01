// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/text_plate.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/text.h"

namespace campora {

namespace {

/// Room between the text and its frame.
constexpr std::int32_t kPadding = 90;

/// Of lines, one below the other.
CanvasSize sizeOfLines(const MapCanvas& canvas, std::string_view text) {
    if (text.ends_with("\r\n")) {
        text.remove_suffix(2);
    }
    CanvasSize size;
    const std::string lines = replaceAll(text, "\r", "");
    for (const std::string_view line : split(lines, '\n')) {
        const CanvasSize lineSize = canvas.textSize(line.empty() ? " " : line, false);
        size.width = std::max(size.width, lineSize.width);
        size.height += lineSize.height;
    }
    return size;
}

}  // namespace

TextPlate textPlate(const MapCanvas& canvas, CanvasPoint at, std::string text) {
    const auto [canvasWidth, canvasHeight] = canvas.size();
    CanvasSize size = sizeOfLines(canvas, text);
    size.width += 2 * kPadding;
    size.height += 2 * kPadding;
    const CanvasPoint corner{std::max(0, std::min(at.x, canvasWidth - size.width)),
                             std::max(0, std::min(at.y, canvasHeight - size.height))};
    return {corner, size, std::move(text)};
}

}  // namespace campora
