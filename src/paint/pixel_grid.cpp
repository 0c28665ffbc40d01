// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/pixel_grid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace campora {

// A pixel belongs to the ring that holds its centre. In each row the edges are crossed at the
// height of the centres, and what lies between an entry and an exit, in order from the left, is
// filled. An edge is computed from its upper end to its lower one whichever way its ring runs: two
// rings that share it cross it at the same numbers, and each centre is in one of them, never in
// both or none. An edge holds its upper end and not its lower one, so that a corner counts once.
//
// A ring costs its edges times the rows that each spans, the sorting of a row's crossings and the
// pixels that it fills. Up to eight edges, which nearly all rings have, are looked at in every row
// and no memory is asked for. Rows off the picture, or drawn by someone else, cost nothing.
//
// A crossing is off by some 1e-11 pixels, in proportion more where corners lie far off the picture:
// a centre that is nearer to an edge may fall on either side of it, the same one for both
// neighbours. Thin lines are the nearest pixels to the line between those of its ends.

namespace {

constexpr int kDotPeriod = 3;  // one dot, two gaps, in pen widths

/// Column and row.
struct Pixel {
    int x = 0;
    int y = 0;
};

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
    const int top = std::max(y - (pen.width - 1) / 2, grid.firstRow);
    const int bottom = std::min(y + pen.width / 2, grid.lastRow());
    for (int row = top; row <= bottom; ++row) {
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
/// control of a digital plotter", 1965). `isDrawn` tells of each of its pixels, by its row.
template <typename IsDrawn>
void thinLine(const PixelGrid& grid, Pixel from, Pixel to, std::uint32_t color, IsDrawn isDrawn) {
    const int dx = std::abs(to.x - from.x);
    const int dy = std::abs(to.y - from.y);
    const std::ptrdiff_t alongX = to.x < from.x ? -1 : 1;
    const int downY = to.y < from.y ? -1 : 1;
    const std::ptrdiff_t alongY = downY * grid.stride;
    const bool isFlat = dx >= dy;
    const std::ptrdiff_t along = isFlat ? alongX : alongY;
    const std::ptrdiff_t across = isFlat ? alongY : alongX;
    const int longer = std::max(dx, dy);
    const int shorter = std::min(dx, dy);
    int y = from.y;
    std::uint32_t* pixel = grid.pixels + y * grid.stride + from.x;
    const auto draw = [&] {
        if (isDrawn(y)) {
            *pixel = color;
        }
    };
    draw();
    int error = longer / 2;
    for (int i = 0; i < longer; ++i) {
        error -= shorter;
        if (error < 0) {
            error += longer;
            pixel += across;
            y += isFlat ? downY : 0;
        }
        pixel += along;
        y += isFlat ? 0 : downY;
        draw();
    }
}

void thinLine(const PixelGrid& grid, PixelPoint from, PixelPoint to, std::uint32_t color) {
    const Pixel start{floorInt(from.x), floorInt(from.y)};
    const Pixel end{floorInt(to.x), floorInt(to.y)};
    const auto [top, bottom] = std::minmax(start.y, end.y);
    if (bottom < grid.firstRow || top > grid.lastRow()) {
        return;
    }
    if (top >= grid.firstRow && bottom <= grid.lastRow()) {
        thinLine(grid, start, end, color, [](int /*row*/) { return true; });
    } else {
        thinLine(grid, start, end, color,
                 [&grid](int row) { return row >= grid.firstRow && row <= grid.lastRow(); });
    }
}

void fillSpan(const PixelGrid& grid, int row, double from, double to, const PixelFill& with) {
    std::uint32_t* const pixels = grid.pixels + row * grid.stride;
    const int right = firstCentreFrom(to, grid.width);
    int column = firstCentreFrom(from, grid.width);
    if (with.hatch == 0) {
        for (; column < right; ++column) {
            pixels[column] = with.color;
        }
        return;
    }
    const int stroke = std::max(1, with.hatch / 8);
    for (; column < right; ++column) {
        if ((column + row) % with.hatch < stroke) {
            pixels[column] = with.color;
        }
    }
}

}  // namespace

void RingFiller::fill(const PixelGrid& grid, std::span<const std::span<const PixelPoint>> rings,
                      const PixelFill& with, FillRule rule) {
    edges_.clear();
    top_ = grid.height;
    bottom_ = 0;
    for (const std::span<const PixelPoint> ring : rings) {
        collectEdges(grid, ring);
    }
    if (edges_.size() <= kFewEdges) {
        fillFewEdges(grid, with, rule);
        return;
    }
    collectCrossings();
    std::size_t begin = 0;
    for (int row = top_; row < bottom_; ++row) {
        const std::size_t end = rowEnds_[static_cast<std::size_t>(row - top_)];
        fillRow(grid, row, std::span(crossings_).subspan(begin, end - begin), with, rule);
        begin = end;
    }
}

/// Sorts the crossings.
void RingFiller::fillRow(const PixelGrid& grid, int row, std::span<Crossing> crossings,
                         const PixelFill& with, FillRule rule) {
    if (crossings.size() == 2) {  // once in and once out
        const auto [left, right] = std::minmax(crossings[0].x, crossings[1].x);
        fillSpan(grid, row, left, right, with);
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
            fillSpan(grid, row, left, crossing.x, with);
        }
    }
}

void RingFiller::fillFewEdges(const PixelGrid& grid, const PixelFill& with, FillRule rule) {
    std::array<Crossing, kFewEdges> crossings;
    for (int row = top_; row < bottom_; ++row) {
        std::size_t count = 0;
        for (const Edge& edge : edges_) {
            if (row >= edge.firstRow && row < edge.endRow) {
                crossings[count++] = {edge.x + (row - edge.firstRow) * edge.slope, edge.turn};
            }
        }
        fillRow(grid, row, std::span(crossings).first(count), with, rule);
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
        if (firstRow >= endRow || endRow <= grid.firstRow || firstRow > grid.lastRow()) {
            continue;
        }
        const double slope = (lower.x - upper.x) / (lower.y - upper.y);
        edges_.push_back(
            {firstRow, endRow, upper.x + (firstRow + 0.5 - upper.y) * slope, slope, down ? 1 : -1});
        top_ = std::min(top_, std::max(firstRow, grid.firstRow));
        bottom_ = std::max(bottom_, std::min(endRow, grid.lastRow() + 1));
    }
}

void RingFiller::collectCrossings() {
    const auto rows = static_cast<std::size_t>(bottom_ - top_);
    rowEnds_.assign(rows, 0);
    for (const Edge& edge : edges_) {
        const int end = std::min(edge.endRow, bottom_);
        for (int row = std::max(edge.firstRow, top_); row < end; ++row) {
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
        const int end = std::min(edge.endRow, bottom_);
        for (int row = std::max(edge.firstRow, top_); row < end; ++row) {
            crossings_[rowEnds_[static_cast<std::size_t>(row - top_)]++] = {
                edge.x + (row - edge.firstRow) * edge.slope, edge.turn};
        }
    }
}

bool fillStrip(const PixelGrid& grid, std::span<const PixelPoint> ring, std::uint32_t color) {
    int left = grid.width;
    int right = -1;
    int top = grid.height;
    int bottom = -1;
    for (const PixelPoint& point : ring) {
        if (!holds(grid, point)) {
            return false;
        }
        const int x = floorInt(point.x);
        const int y = floorInt(point.y);
        left = std::min(left, x);
        right = std::max(right, x);
        top = std::min(top, y);
        bottom = std::max(bottom, y);
    }
    if (right < left || (left != right && top != bottom)) {
        return false;
    }
    const int last = std::min(bottom, grid.lastRow());
    for (int row = std::max(top, grid.firstRow); row <= last; ++row) {
        std::uint32_t* const pixels = grid.pixels + row * grid.stride;
        std::fill(pixels + left, pixels + right + 1, color);
    }
    return true;
}

void LineDrawer::line(const PixelGrid& grid, PixelPoint from, PixelPoint to, const Pen& pen) {
    if (!pen.dotted || from != end_) {
        phase_ = 0;
    }
    end_ = to;
    const bool inside = holds(grid, from) && holds(grid, to);
    if (inside && pen.width == 1 && !pen.dotted) {
        thinLine(grid, from, to, pen.color);
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
