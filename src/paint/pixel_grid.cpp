// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/pixel_grid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace campora {

namespace {

constexpr int kDotPeriod = 3;  // one dot, two gaps, in pen widths

/// Whole part towards minus infinity; `value` must fit. (std::floor is a call on plain x86-64, and
/// the drawing of a small ring consists of little else.)
int floorInt(double value) {
    const int whole = static_cast<int>(value);
    return whole - (value < whole ? 1 : 0);
}

/// First row (or column) whose centre is not before `position`, within 0 to `limit`.
int firstCentreFrom(double position, int limit) {
    if (!(position > 0.5)) {
        return 0;
    }
    if (position > limit) {
        return limit;
    }
    const double first = position - 0.5;
    const int whole = static_cast<int>(first);
    return whole + (whole < first ? 1 : 0);
}

/// The part of the segment inside the grid widened by `margin`; false when there is none
/// (Liang and Barsky, "A New Concept and Method for Line Clipping", 1984).
bool clip(const PixelGrid& grid, double margin, PixelPoint& from, PixelPoint& to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    double enter = 0;
    double leave = 1;
    const std::array<std::array<double, 2>, 4> sides{{{-dx, from.x + margin},
                                                      {dx, grid.width + margin - from.x},
                                                      {-dy, from.y + margin},
                                                      {dy, grid.height + margin - from.y}}};
    for (const auto& [towards, distance] : sides) {
        if (towards == 0) {
            if (distance < 0) {
                return false;
            }
            continue;
        }
        const double at = distance / towards;
        if (towards < 0) {
            enter = std::max(enter, at);
        } else {
            leave = std::min(leave, at);
        }
    }
    if (!(enter <= leave)) {
        return false;
    }
    const PixelPoint start = from;
    if (enter > 0) {
        from = {start.x + enter * dx, start.y + enter * dy};
    }
    if (leave < 1) {
        to = {start.x + leave * dx, start.y + leave * dy};
    }
    return true;
}

void dot(const PixelGrid& grid, int x, int y, const LineDrawer::Pen& pen) {
    const int left = std::max(x - (pen.width - 1) / 2, 0);
    const int right = std::min(x + pen.width / 2 + 1, grid.width);
    const int top = std::max(y - (pen.width - 1) / 2, 0);
    const int bottom = std::min(y + pen.width / 2 + 1, grid.height);
    for (int row = top; row < bottom; ++row) {
        std::uint32_t* const pixels = grid.pixels + row * grid.stride;
        for (int column = left; column < right; ++column) {
            pixels[column] = pen.color;
        }
    }
}

bool holds(const PixelGrid& grid, const PixelPoint& point) {
    return point.x >= 0 && point.x < grid.width && point.y >= 0 && point.y < grid.height;
}

/// A solid line one pixel wide between two pixels of the grid (Bresenham, "Algorithm for computer
/// control of a digital plotter", 1965).
void thinLine(const PixelGrid& grid, int x, int y, int endX, int endY, std::uint32_t color) {
    const int dx = std::abs(endX - x);
    const int dy = std::abs(endY - y);
    const std::ptrdiff_t alongX = endX < x ? -1 : 1;
    const std::ptrdiff_t alongY = endY < y ? -grid.stride : grid.stride;
    const std::ptrdiff_t along = dx >= dy ? alongX : alongY;
    const std::ptrdiff_t across = dx >= dy ? alongY : alongX;
    const int longer = std::max(dx, dy);
    const int shorter = std::min(dx, dy);
    std::uint32_t* pixel = grid.pixels + y * grid.stride + x;
    *pixel = color;
    int error = longer / 2;
    for (int i = 0; i < longer; ++i) {
        error -= shorter;
        if (error < 0) {
            error += longer;
            pixel += across;
        }
        pixel += along;
        *pixel = color;
    }
}

void fillSpan(std::uint32_t* pixels, int width, double from, double to, std::uint32_t color) {
    const int right = firstCentreFrom(to, width);
    for (int column = firstCentreFrom(from, width); column < right; ++column) {
        pixels[column] = color;
    }
}

}  // namespace

void RingFiller::fill(const PixelGrid& grid, std::span<const std::span<const PixelPoint>> rings,
                      std::uint32_t color, FillRule rule) {
    edges_.clear();
    top_ = grid.height;
    bottom_ = 0;
    for (const std::span<const PixelPoint> ring : rings) {
        collectEdges(grid, ring);
    }
    if (edges_.size() <= kFewEdges) {
        fillFewEdges(grid, color, rule);
        return;
    }
    collectCrossings();
    std::size_t begin = 0;
    for (int row = top_; row < bottom_; ++row) {
        const std::size_t end = rowEnds_[static_cast<std::size_t>(row - top_)];
        fillRow(grid, row, std::span(crossings_).subspan(begin, end - begin), color, rule);
        begin = end;
    }
}

/// Sorts the crossings.
void RingFiller::fillRow(const PixelGrid& grid, int row, std::span<Crossing> crossings,
                         std::uint32_t color, FillRule rule) {
    std::uint32_t* const pixels = grid.pixels + row * grid.stride;
    if (crossings.size() == 2) {  // once in and once out
        const auto [left, right] = std::minmax(crossings[0].x, crossings[1].x);
        fillSpan(pixels, grid.width, left, right, color);
        return;
    }
    std::sort(crossings.begin(), crossings.end(),
              [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
    const bool evenOdd = rule == FillRule::EvenOdd;
    int turns = 0;
    double left = 0;
    for (const Crossing& crossing : crossings) {
        if (turns == 0) {
            left = crossing.x;
        }
        turns = evenOdd ? 1 - turns : turns + crossing.turn;
        if (turns == 0) {
            fillSpan(pixels, grid.width, left, crossing.x, color);
        }
    }
}

void RingFiller::fillFewEdges(const PixelGrid& grid, std::uint32_t color, FillRule rule) {
    std::array<Crossing, kFewEdges> crossings;
    for (int row = top_; row < bottom_; ++row) {
        std::size_t count = 0;
        for (const Edge& edge : edges_) {
            if (row >= edge.firstRow && row < edge.endRow) {
                crossings[count++] = {edge.x + (row - edge.firstRow) * edge.slope, edge.turn};
            }
        }
        fillRow(grid, row, std::span(crossings).first(count), color, rule);
    }
}

void RingFiller::collectEdges(const PixelGrid& grid, std::span<const PixelPoint> ring) {
    if (ring.size() < 3) {
        return;
    }
    const PixelPoint* previous = &ring.back();
    for (const PixelPoint& point : ring) {
        // From top to bottom whichever way the ring runs: a neighbour that shares the edge computes
        // the very same crossings.
        const bool down = previous->y <= point.y;
        const PixelPoint& upper = down ? *previous : point;
        const PixelPoint& lower = down ? point : *previous;
        previous = &point;
        const int firstRow = firstCentreFrom(upper.y, grid.height);
        const int endRow = firstCentreFrom(lower.y, grid.height);
        if (firstRow >= endRow) {
            continue;
        }
        const double slope = (lower.x - upper.x) / (lower.y - upper.y);
        edges_.push_back(
            {firstRow, endRow, upper.x + (firstRow + 0.5 - upper.y) * slope, slope, down ? 1 : -1});
        top_ = std::min(top_, firstRow);
        bottom_ = std::max(bottom_, endRow);
    }
}

void RingFiller::collectCrossings() {
    const auto rows = static_cast<std::size_t>(bottom_ - top_);
    rowEnds_.assign(rows, 0);
    for (const Edge& edge : edges_) {
        for (int row = edge.firstRow; row < edge.endRow; ++row) {
            ++rowEnds_[static_cast<std::size_t>(row - top_)];
        }
    }
    std::size_t total = 0;
    for (std::size_t& end : rowEnds_) {  // now where each row begins
        const std::size_t count = end;
        end = total;
        total += count;
    }
    crossings_.resize(total);
    for (const Edge& edge : edges_) {
        for (int row = edge.firstRow; row < edge.endRow; ++row) {
            crossings_[rowEnds_[static_cast<std::size_t>(row - top_)]++] = {
                edge.x + (row - edge.firstRow) * edge.slope, edge.turn};
        }
    }
}

void LineDrawer::line(const PixelGrid& grid, PixelPoint from, PixelPoint to, const Pen& pen) {
    if (!pen.dotted || from != end_) {
        phase_ = 0;
    }
    end_ = to;
    const bool inside = holds(grid, from) && holds(grid, to);
    if (inside && pen.width == 1 && !pen.dotted) {
        thinLine(grid, floorInt(from.x), floorInt(from.y), floorInt(to.x), floorInt(to.y),
                 pen.color);
        return;
    }
    if (!inside && !clip(grid, pen.width, from, to)) {
        return;
    }
    dottedOrThick(grid, from, to, pen);
}

void LineDrawer::dottedOrThick(const PixelGrid& grid, PixelPoint from, PixelPoint to,
                               const Pen& pen) {
    double x = floorInt(from.x) + 0.5;
    double y = floorInt(from.y) + 0.5;
    const double dx = floorInt(to.x) + 0.5 - x;
    const double dy = floorInt(to.y) + 0.5 - y;
    const int steps = static_cast<int>(std::max(std::abs(dx), std::abs(dy)));
    for (int i = 0; i <= steps; ++i) {
        if (!pen.dotted || (phase_ / pen.width) % kDotPeriod == 0) {
            dot(grid, floorInt(x), floorInt(y), pen);
        }
        if (i == steps) {
            break;
        }
        ++phase_;
        x += dx / steps;
        y += dy / steps;
    }
}

}  // namespace campora
