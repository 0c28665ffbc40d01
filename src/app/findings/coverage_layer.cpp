// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/coverage_layer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace campora {

namespace {

using Tile = CoverageGrid::Tile;

/// Of what is outlined at least: a pixel of the screen, and as little on paper.
constexpr std::int32_t kPixelsOutlined = 4;

/// What a cell is drawn as; ground that nothing is drawn on comes first.
enum class Ground : std::uint8_t { Bare, Once, Twice, More, Skipped };

Ground groundOf(std::uint8_t cell) {
    if (CoverageGrid::isLeftOut(cell)) {
        return Ground::Skipped;
    }
    return static_cast<Ground>(std::min(CoverageGrid::timesCovered(cell), 3));
}

Color colorOf(Ground ground) {
    switch (ground) {
    case Ground::Once:
        return coverage_colors::kOnce;
    case Ground::Twice:
        return coverage_colors::kTwice;
    case Ground::More:
        return coverage_colors::kMore;
    default:
        return coverage_colors::kSkipped;
    }
}

BoundingBox boundOf(const CoverageGrid& grid) {
    BoundingBox bound;
    for (const auto& tile : grid.tiles()) {
        const double west = static_cast<double>(tile->column) * CoverageGrid::kTileSide;
        const double south = static_cast<double>(tile->row) * CoverageGrid::kTileSide;
        for (const double u : {west, west + CoverageGrid::kTileSide}) {
            for (const double v : {south, south + CoverageGrid::kTileSide}) {
                const LonLat at = grid.lattice().position({u, v});
                bound.addPoint(at.x, at.y);
            }
        }
    }
    return bound;
}

/// Rows of pixels of a colour each, drawn as one box a stretch.
class RowPainter {
public:
    RowPainter(MapCanvas& canvas, std::int32_t top, std::int32_t side)
        : canvas_(canvas), top_(top), side_(side) {}

    void pixel(std::int32_t left, Ground ground) {
        if (ground != ground_) {
            finish(left);
            ground_ = ground;
            from_ = left;
        }
    }
    void finish(std::int32_t left) {
        if (ground_ != Ground::Bare) {
            canvas_.rectangle({from_, top_}, {left - 1, top_ + side_ - 1}, colorOf(ground_),
                              RectangleStyle::Filled);
        }
    }

private:
    MapCanvas& canvas_;
    std::int32_t top_;
    std::int32_t side_;
    std::int32_t from_ = 0;
    Ground ground_ = Ground::Bare;
};

}  // namespace

CoverageLayer::CoverageLayer(CoverageGrid grid, std::vector<std::vector<LonLat>> lots)
    : grid_(std::move(grid)), lots_(std::move(lots)), bound_(boundOf(grid_)) {}

void CoverageLayer::Gph_plot(MapContext& context) const {
    const ViewTransform& view = context.view;
    if (!view.isFitted()) {
        return;
    }
    plotLots(context);
    if (!view.mayTouch(bound_, 0)) {
        return;
    }
    const std::int32_t side = std::max(context.leastOutlined / kPixelsOutlined, 1);
    const std::int32_t north = view.mapToScreen(bound_.minX, bound_.maxY).y;
    const std::int32_t south = view.mapToScreen(bound_.minX, bound_.minY).y;
    const std::int32_t end = std::min(south + side, view.canvas().height);
    for (std::int32_t top = std::max(north / side * side, 0); top < end; top += side) {
        plotRow(context, top, side);
    }
}

void CoverageLayer::plotLots(MapContext& context) const {
    MapCanvas& canvas = context.canvas;
    const Color ink = canvas.penColor();
    canvas.setFillStyle(FillStyle::Solid);
    canvas.setFillColor(coverage_colors::kSkipped);
    canvas.setPenColor(coverage_colors::kSkipped);
    for (const std::vector<LonLat>& lot : lots_) {
        std::vector<CanvasPoint> ring;
        ring.reserve(lot.size());
        for (const LonLat at : lot) {
            ring.push_back(context.view.mapToScreen(at.x, at.y));
        }
        canvas.polygon(ring);
    }
    canvas.setPenColor(ink);
}

void CoverageLayer::plotRow(MapContext& context, std::int32_t top, std::int32_t side) const {
    const ViewTransform& view = context.view;
    const auto middle = [&](std::int32_t left) {
        const float half = static_cast<float>(side) / 2;
        return grid_.lattice().at(
            view.screenToMap(static_cast<float>(left) + half, static_cast<float>(top) + half));
    };
    const float row = static_cast<float>(top) + static_cast<float>(side) / 2;
    const LonLat west = view.screenToMap(0, row);
    const LonLat east = view.screenToMap(static_cast<float>(view.canvas().width), row);
    if (!view.mayTouch(west, east, side * static_cast<double>(view.scaleY()))) {
        return;  // of a part of the canvas that others draw
    }
    // Along a row of the canvas the lattice is passed in equal steps.
    const std::int32_t width = view.canvas().width / side * side;
    const LatticePoint first = middle(0);
    const LatticePoint last = middle(width);
    const double steps = std::max(width / side, 1);
    const double stepU = (last.u - first.u) / steps;
    const double stepV = (last.v - first.v) / steps;
    RowPainter painter(context.canvas, top, side);
    const Tile* tile = nullptr;
    for (std::int32_t left = 0, n = 0; left < view.canvas().width; left += side, ++n) {
        painter.pixel(left, groundOf(cellAt({first.u + n * stepU, first.v + n * stepV}, tile)));
    }
    painter.finish(view.canvas().width);
}

std::uint8_t CoverageLayer::cellAt(LatticePoint point, const Tile*& last) const {
    const auto column = static_cast<std::int32_t>(std::floor(point.u));
    const auto row = static_cast<std::int32_t>(std::floor(point.v));
    const std::int32_t tileColumn = CoverageGrid::tileOf(column);
    const std::int32_t tileRow = CoverageGrid::tileOf(row);
    if (last == nullptr || last->column != tileColumn || last->row != tileRow) {
        const Tile* const found = grid_.findTile(tileColumn, tileRow);
        if (found == nullptr) {
            return 0;
        }
        last = found;
    }
    return last->part(CoverageGrid::placeInTile(row), CoverageGrid::placeInTile(column), 1).front();
}

}  // namespace campora
