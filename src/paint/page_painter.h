// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include <QImage>

#include "base/failure.h"
#include "pages/page_layout.h"
#include "platform/map_canvas.h"

class QPainter;

namespace campora {

/// Widths of texts as `paintPage` draws them.
[[nodiscard]] TextWidth pageTextWidth();

/// Draws the map over the whole canvas; false when there is to be none after all.
using DrawPageMap = std::function<bool(MapCanvas& canvas)>;

/// The picture of a page's map on a canvas of that size, at so many dots an inch or, for large
/// paper, as many as 36 million pixels (144 MB) give: 600 on A4, about 570 on A3. Null when memory
/// does not suffice or `draw` says no.
[[nodiscard]] QImage pageMapPicture(const PageLayout& page, CanvasSize canvas, int dotsPerInch,
                                    const DrawPageMap& draw);

/// Draws a page whose upper left corner is the painter's origin, texts and lines as such and not as
/// pictures. `dotsPerMm`: of the painter's device.
void paintPage(QPainter& painter, double dotsPerMm, const PageLayout& page, const QImage& map);

/// What a document says of itself.
struct PdfNames {
    std::string title;
    /// Name and version of what made it.
    std::string program;
};

/// The bytes of a PDF of that one page, in which the map's picture has lost nothing.
[[nodiscard]] std::string pagePdf(const PageLayout& page, const QImage& map, const PdfNames& names);

}  // namespace campora
