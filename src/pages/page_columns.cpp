// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_columns.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace campora {

namespace {

/// A heading with the row under it.
constexpr int kLeastRows = 2;
/// What looks better may be this much higher than what is lowest.
constexpr double kWorth = 1.5;

enum class Style {
    /// Each block, with those that join it, in a column of its own, in one piece.
    Apart,
    /// One block after the other, each in one piece.
    Whole,
    /// One block after the other, broken where a column ends.
    Running,
};

/// Sets rows into columns of a given height.
class Flow {
public:
    Flow(int columns, int lines, Style style) : columns_(columns), lines_(lines), style_(style) {}

    /// False when there is no room for the block.
    bool add(const PageBlock& block) {
        const int least =
            style_ == Style::Running ? kLeastRows : static_cast<int>(block.rows.size());
        if (line_ > 0) {
            const bool startsAnew =
                (style_ == Style::Apart && !block.joinsPrevious) || line_ + 1 + least > lines_;
            startsAnew ? nextColumn() : static_cast<void>(++line_);
        }
        if (least > lines_) {
            return false;
        }
        for (const PageRow& row : block.rows) {
            if (line_ >= lines_) {
                nextColumn();
            }
            if (column_ >= columns_) {
                return false;
            }
            placed_.rows.push_back({row, column_, line_++});
            placed_.lines = std::max(placed_.lines, line_);
        }
        return true;
    }
    [[nodiscard]] PlacedBlocks take() { return std::move(placed_); }

private:
    void nextColumn() {
        ++column_;
        line_ = 0;
    }

    int columns_;
    int lines_;
    Style style_;
    int column_ = 0;
    int line_ = 0;
    PlacedBlocks placed_;
};

std::optional<PlacedBlocks> tryFlow(const std::vector<PageBlock>& blocks, int columns, int lines,
                                    Style style) {
    Flow flow(columns, lines, style);
    for (const PageBlock& block : blocks) {
        if (!flow.add(block)) {
            return std::nullopt;
        }
    }
    return flow.take();
}

/// The lowest that holds all blocks; none within `mostLines`.
std::optional<PlacedBlocks> lowest(const std::vector<PageBlock>& blocks, int columns, int mostLines,
                                   Style style) {
    for (int lines = kLeastRows; lines <= mostLines; ++lines) {
        if (std::optional<PlacedBlocks> placed = tryFlow(blocks, columns, lines, style)) {
            return placed;
        }
    }
    return std::nullopt;
}

std::optional<PlacedBlocks> best(const std::vector<PageBlock>& blocks, int columns, int mostLines) {
    std::optional<PlacedBlocks> running = lowest(blocks, columns, mostLines, Style::Running);
    if (!running) {
        return std::nullopt;
    }
    const int worth = static_cast<int>(running->lines * kWorth);
    for (const Style style : {Style::Apart, Style::Whole}) {
        if (std::optional<PlacedBlocks> better =
                lowest(blocks, columns, std::min(worth, mostLines), style)) {
            return better;
        }
    }
    return running;
}

/// Blocks of which the ends are left out.
class ShortBlocks {
public:
    ShortBlocks(std::vector<PageBlock> blocks, const MoreText& more)
        : blocks_(std::move(blocks)), more_(more), left_(blocks_.size(), 0) {}

    [[nodiscard]] const std::vector<PageBlock>& blocks() const { return blocks_; }

    /// Leaves one more row out of the longest block; false when every block is at its shortest.
    bool shorten() {
        const auto longest = std::max_element(
            blocks_.begin(), blocks_.end(),
            [](const PageBlock& a, const PageBlock& b) { return a.rows.size() < b.rows.size(); });
        if (longest == blocks_.end() || longest->rows.size() <= kLeastRows) {
            return false;
        }
        int& left = left_[static_cast<std::size_t>(longest - blocks_.begin())];
        longest->rows.pop_back();  // the row that tells of it, or the one whose place that takes
        left += left == 0 ? 2 : 1;
        longest->rows.pop_back();
        longest->rows.push_back({PageRow::Kind::Line, more_(left)});
        return true;
    }

private:
    std::vector<PageBlock> blocks_;
    const MoreText& more_;
    std::vector<int> left_;
};

}  // namespace

PlacedBlocks placeBlocks(std::vector<PageBlock> blocks, int columns, int mostLines,
                         const MoreText& more) {
    std::erase_if(blocks, [](const PageBlock& block) { return block.rows.size() < kLeastRows; });
    if (std::optional<PlacedBlocks> all = best(blocks, columns, mostLines)) {
        return std::move(*all);
    }
    for (; !blocks.empty(); blocks.pop_back()) {
        ShortBlocks rest(blocks, more);
        do {
            if (std::optional<PlacedBlocks> placed =
                    tryFlow(rest.blocks(), columns, mostLines, Style::Running)) {
                placed->cut = true;
                return std::move(*placed);
            }
        } while (rest.shorten());
    }
    PlacedBlocks nothing;
    nothing.cut = true;
    return nothing;
}

}  // namespace campora
