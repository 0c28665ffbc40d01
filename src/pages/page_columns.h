// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/color.h"

namespace campora {

/// A line of what stands beside the map.
struct PageRow {
    enum class Kind { Heading, Swatch, Pair, Line };

    Kind kind = Kind::Line;
    std::string text;
    /// Of a pair.
    std::string value = {};
    /// Of a swatch.
    Color color = {};

    bool operator==(const PageRow&) const = default;
};

/// A heading and its rows.
struct PageBlock {
    std::vector<PageRow> rows;
    /// Stays in the column of the block before it where there is room.
    bool joinsPrevious = false;
};

struct PlacedRow {
    PageRow row;
    int column = 0;
    /// From the top of the column.
    int line = 0;
};

struct PlacedBlocks {
    std::vector<PlacedRow> rows;
    /// Of the longest column.
    int lines = 0;
    /// Rows had to be left out.
    bool cut = false;
};

/// Text of the row that stands for so many that were left out.
using MoreText = std::function<std::string(int left)>;

/// Sets the blocks in up to so many columns: a block a column, or one after the other with a line
/// between them, in one piece where that is not much higher than the lowest there is. A heading
/// never stands last in its column. What `mostLines` does not hold is left out from the ends of the
/// longest blocks, with a row that says how much; what has no room even then is not placed at all.
[[nodiscard]] PlacedBlocks placeBlocks(std::vector<PageBlock> blocks, int columns, int mostLines,
                                       const MoreText& more);

}  // namespace campora
