// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A grid as it is drawn: cells of one colour side by side are one rectangle.

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

#include "presc/grid_layer.h"

namespace campora {

namespace {

/// Cells are drawn a little wider than they are, so that no gap shows between them.
constexpr double kDrawnWidths = 1.01;
constexpr std::int32_t kUnitsPerPixel = 15;
/// Cells with a longer side than this, in pixels, are rectangles.
constexpr std::int64_t kLargestPoint = 2;

std::pair<std::int64_t, std::int64_t> sides(CanvasPoint corner, CanvasPoint opposite) {
    return std::minmax(std::abs(std::int64_t{opposite.x} - corner.x),
                       std::abs(std::int64_t{opposite.y} - corner.y));
}

bool isPoint(CanvasPoint corner, CanvasPoint opposite) {
    return sides(corner, opposite).second <= (kLargestPoint - 1) * kUnitsPerPixel;
}

/// First and one past the last index from 0 to `count` for which `touches` says yes; `touches`
/// says it for no others between.
template <typename Touches>
std::pair<std::int32_t, std::int32_t> touchedRange(std::int32_t count, Touches touches) {
    std::int32_t first = 0;
    while (first < count && !touches(static_cast<std::size_t>(first))) {
        ++first;
    }
    std::int32_t last = count;
    while (last > first && !touches(static_cast<std::size_t>(last) - 1)) {
        --last;
    }
    return {first, last};
}

}  // namespace

GridLayer::Window GridLayer::visibleCells(const ViewTransform& view) const {
    const double width = kDrawnWidths * cellWidth();
    const double rise = cellRise();
    const double west = cells_.columnX.front();
    const double east = cells_.columnX.back() + width;
    const double nearest = cells_.rowY.front();
    const double farthest = cells_.rowY.back() + rise;
    Window window;
    std::tie(window.firstRow, window.lastRow) = touchedRange(rows(), [&](std::size_t row) {
        const double y = cells_.rowY[row];
        return view.mayTouch({west, y}, {east, y + rise}, 0);
    });
    std::tie(window.firstColumn, window.lastColumn) =
        touchedRange(columns(), [&](std::size_t column) {
            const double x = cells_.columnX[column];
            return view.mayTouch({x, nearest}, {x + width, farthest}, 0);
        });
    return window;
}

Color GridLayer::colorOf(std::int32_t steps, const MapStyle& style) const {
    const auto dose = static_cast<float>(inUnits(steps));
    return steps == 0 ? style.colors.back : shownScale().getColor(static_cast<double>(dose));
}

void GridLayer::Gph_plot(MapContext& context) const {
    if (!context.view.isFitted()) {
        return;
    }
    const Window window = visibleCells(context.view);
    for (std::int32_t row = window.firstRow; row < window.lastRow; ++row) {
        plotRow(context, row, window);
    }
    if (context.style.drawBorders) {
        outlineCells(context, window);
    }
}

/// On top of all rows: each row reaches a little over the next.
void GridLayer::outlineCells(MapContext& context, const Window& window) const {
    const auto corners = [&](std::int32_t row, std::int32_t column) {
        const double x = cells_.columnX[static_cast<std::size_t>(column)];
        const double y = cells_.rowY[static_cast<std::size_t>(row)];
        return std::pair(context.view.mapToScreen(x, y),
                         context.view.mapToScreen(x + cellWidth(), y + cellRise()));
    };
    if (window.firstRow == window.lastRow || window.firstColumn == window.lastColumn) {
        return;
    }
    // As large as one cell are all others.
    const auto [corner, opposite] = corners(window.firstRow, window.firstColumn);
    if (sides(corner, opposite).first < context.leastOutlined) {
        return;
    }
    for (std::int32_t row = window.firstRow; row < window.lastRow; ++row) {
        for (std::int32_t column = window.firstColumn; column < window.lastColumn; ++column) {
            if (shownSteps(row * columns() + column) != 0) {
                const auto [near, far] = corners(row, column);
                context.canvas.rectangle(near, far, context.style.colors.fore,
                                         RectangleStyle::Outlined);
            }
        }
    }
}

void GridLayer::plotRow(MapContext& context, std::int32_t row, const Window& window) const {
    const double width = kDrawnWidths * cellWidth();
    const double y = cells_.rowY[static_cast<std::size_t>(row)];
    const auto west = [&](std::int32_t column) {
        return cells_.columnX[static_cast<std::size_t>(column)];
    };
    const auto near = [&](std::int32_t column) {
        return context.view.mapToScreen(west(column), y);
    };
    const auto far = [&](std::int32_t column) {
        return context.view.mapToScreen(west(column) + width, y + cellRise());
    };
    const bool points = isPoint(near(window.firstColumn), far(window.firstColumn));
    for (std::int32_t column = window.firstColumn; column < window.lastColumn;) {
        const std::int32_t dose = shownSteps(row * columns() + column);
        const Color color = colorOf(dose, context.style);
        if (points) {
            context.canvas.point(near(column), color);
            ++column;
            continue;
        }
        const CanvasPoint corner = near(column);
        do {
            ++column;
        } while (column < window.lastColumn && shownSteps(row * columns() + column) == dose);
        context.canvas.rectangle(corner, far(column - 1), color, RectangleStyle::Filled);
    }
}

}  // namespace campora
