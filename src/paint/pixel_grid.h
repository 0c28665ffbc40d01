// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace campora {

/// A picture's pixels as 0xFFRRGGBB, row by row from the top; the memory belongs to someone else.
struct PixelGrid {
    std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    /// Pixels from one row to the next.
    std::ptrdiff_t stride = 0;
    /// Rows that are drawn on, of all: what falls on others is left to whoever draws those, and
    /// every pixel is the one that drawing on all rows at once gives.
    int firstRow = 0;
    int endRow = std::numeric_limits<int>::max();

    [[nodiscard]] int lastRow() const { return std::min(endRow, height) - 1; }
};

/// What a ring is filled with.
struct PixelFill {
    // NOLINTNEXTLINE(google-explicit-constructor): a colour alone is the usual fill
    PixelFill(std::uint32_t filledWith, int hatchPixels = 0)
        : color(filledWith), hatch(hatchPixels) {}

    std::uint32_t color;
    /// Pixels from one stroke of a diagonal hatch to the next, an eighth of them stroke; 0: solid.
    int hatch;
};

/// A position in pixels; pixel (i, j) covers i to i + 1 and j to j + 1.
struct PixelPoint {
    double x = 0;
    double y = 0;

    bool operator==(const PixelPoint&) const = default;
};

/// What of a ring that crosses itself is inside.
enum class FillRule {
    NonZero,  ///< what the ring goes round at all
    EvenOdd,  ///< what it goes round an odd number of times
};

/// Fills rings: a pixel belongs to the ring that holds its centre, so that rings that share an edge
/// leave no seam and cover no pixel twice. Keeps its buffers between rings, because a map is a
/// hundred thousand small rings.
class RingFiller {
public:
    /// `ring`: closed, first point not repeated, of any size and anywhere.
    void fill(const PixelGrid& grid, std::span<const PixelPoint> ring, const PixelFill& with,
              FillRule rule = FillRule::NonZero) {
        fill(grid, std::span(&ring, 1), with, rule);
    }
    /// Several rings as one figure.
    void fill(const PixelGrid& grid, std::span<const std::span<const PixelPoint>> rings,
              const PixelFill& with, FillRule rule);

private:
    struct Edge {
        int firstRow;
        int endRow;
        double x;      // at the centre of the first row
        double slope;  // x per row
        int turn;      // 1 when the ring runs down here, -1 when it runs up
    };
    struct Crossing {
        double x;
        int turn;
    };

    /// Up to here looking at every edge in every row is cheaper than sorting them into rows.
    static constexpr std::size_t kFewEdges = 8;

    static void fillRow(const PixelGrid& grid, int row, std::span<Crossing> crossings,
                        const PixelFill& with, FillRule rule);
    void fillFewEdges(const PixelGrid& grid, const PixelFill& with, FillRule rule);
    void collectEdges(const PixelGrid& grid, std::span<const PixelPoint> ring);
    void collectCrossings();

    std::vector<Edge> edges_;
    int top_ = 0;
    int bottom_ = 0;
    // Crossings of row top_ + i stand at rowEnds_[i - 1] to rowEnds_[i].
    std::vector<std::size_t> rowEnds_;
    std::vector<Crossing> crossings_;
};

/// A ring whose corners lie in one row or one column of pixels: colours the pixels from its first
/// to its last, which are those that its outline goes through and leave nothing to fill. False for
/// others, and where a corner is off the picture; nothing has been drawn then.
bool fillStrip(const PixelGrid& grid, std::span<const PixelPoint> ring, std::uint32_t color);

/// Draws straight lines of square dots, solid or dotted. The rhythm of a dotted line goes on where
/// the next line starts at the end of the last one, so that a track of short steps stays dotted.
class LineDrawer {
public:
    struct Pen {
        std::uint32_t color = 0;
        int width = 1;
        bool dotted = false;
    };

    void line(const PixelGrid& grid, PixelPoint from, PixelPoint to, const Pen& pen);

private:
    void dottedOrThick(const PixelGrid& grid, PixelPoint from, PixelPoint to, const Pen& pen);

    PixelPoint end_;
    int phase_ = 0;
};

}  // namespace campora
