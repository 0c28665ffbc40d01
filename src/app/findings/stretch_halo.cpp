// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/stretch_halo.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <utility>
#include <vector>

namespace campora {

namespace {

/// Canvas units between two points of a line, where there are few of them.
constexpr std::int32_t kFinest = 30;
constexpr std::int32_t kCoarsest = 960;
/// Points that are painted in no time, beside those of the coarsest lines.
constexpr std::size_t kMostPoints = 1500;

bool isFar(CanvasPoint a, CanvasPoint b, std::int64_t least) {
    return std::abs(std::int64_t{a.x} - b.x) >= least || std::abs(std::int64_t{a.y} - b.y) >= least;
}

LonLat positionOf(const WorkLayer& pass, std::size_t record) {
    return pass.recordN(static_cast<std::int32_t>(record)).position;
}

}  // namespace

/// Lines of parts of passes, as far as they may touch the canvas. `least`: canvas units between two
/// points of a line.
class StretchHalo::LineMaker {
public:
    LineMaker(const ViewTransform& view, std::int32_t least, std::size_t mostPoints)
        : view_(view), least_(least), mostPoints_(mostPoints) {}

    void addLines(const Pass& pass, std::pair<std::size_t, std::size_t> records) {
        pass_ = &pass;
        records_ = records;
        isOpen_ = false;
        at_ = positionOf(*pass.layer, records.first);
        if (records.first == records.second) {
            addStep(at_, true);
        } else {
            visit(pass.levels.size() - 1, 0, stepsOfTop(pass.levels.size()));
        }
    }
    [[nodiscard]] std::size_t points() const { return points_; }
    [[nodiscard]] bool isFull() const { return points_ > mostPoints_; }
    [[nodiscard]] std::vector<HaloLine> take() { return std::move(lines_); }

private:
    static std::size_t stepsOfTop(std::size_t levels) {
        std::size_t steps = kLeaf;
        for (std::size_t i = 1; i < levels; ++i) {
            steps *= kBranch;
        }
        return steps;
    }

    /// `steps`: how many a box of this level holds.
    void visit(std::size_t level, std::size_t node, std::size_t steps) {
        const std::size_t first = std::max(node * steps, records_.first);
        const std::size_t end = std::min((node + 1) * steps, records_.second);
        if (first >= end || isFull()) {
            return;
        }
        const Box& box = pass_->levels[level][node];
        const bool touches = view_.mayTouch(box.least, box.greatest, 0);
        if (!touches || isSmall(box)) {
            const LonLat to = end == (node + 1) * steps ? box.end : positionOf(*pass_->layer, end);
            if (touches) {
                addStep(to, end == records_.second);
            }
            isOpen_ = isOpen_ && touches;
            at_ = to;
        } else if (level == 0) {
            for (std::size_t n = first + 1; n <= end; ++n) {
                addStep(positionOf(*pass_->layer, n), n == records_.second);
            }
        } else {
            const std::size_t below = pass_->levels[level - 1].size();
            for (std::size_t i = node * kBranch; i < std::min((node + 1) * kBranch, below); ++i) {
                visit(level - 1, i, steps / kBranch);
            }
        }
    }

    [[nodiscard]] bool isSmall(const Box& box) const {
        return !isFar(view_.mapToScreen(box.least.x, box.least.y),
                      view_.mapToScreen(box.greatest.x, box.greatest.y), least_);
    }

    void addStep(LonLat to, bool isLast) {
        const LonLat from = std::exchange(at_, to);
        if (!view_.mayTouch(from, to, 0)) {
            isOpen_ = false;
            return;
        }
        if (!isOpen_) {
            lines_.push_back({{view_.mapToScreen(from.x, from.y)}});
            isOpen_ = true;
            ++points_;
        }
        const CanvasPoint point = view_.mapToScreen(to.x, to.y);
        if (isLast || isFar(lines_.back().points.back(), point, least_)) {
            lines_.back().points.push_back(point);
            ++points_;
        }
    }

    const ViewTransform& view_;
    std::int32_t least_;
    std::size_t mostPoints_;
    const Pass* pass_ = nullptr;
    std::pair<std::size_t, std::size_t> records_;
    /// Where the way has come to.
    LonLat at_;
    std::vector<HaloLine> lines_;
    std::size_t points_ = 0;
    bool isOpen_ = false;
};

StretchHalo::StretchHalo(std::span<const WorkLayer* const> passes) {
    for (const WorkLayer* layer : passes) {
        passes_.push_back(passOf(*layer));
    }
}

StretchHalo::Pass StretchHalo::passOf(const WorkLayer& layer) {
    const auto add = [](Box& box, const Box& other) {
        box.least = {std::min(box.least.x, other.least.x), std::min(box.least.y, other.least.y)};
        box.greatest = {std::max(box.greatest.x, other.greatest.x),
                        std::max(box.greatest.y, other.greatest.y)};
        box.end = other.end;
    };
    Pass pass{&layer, {}};
    std::vector<Box> level;
    const auto count = static_cast<std::size_t>(layer.recordCount());
    for (std::size_t n = 0; n < count; ++n) {
        const LonLat at = positionOf(layer, n);
        if (n > 0) {
            add(level.back(), {at, at, at});  // where the step before it ends
        }
        if (n % kLeaf == 0) {
            level.push_back({at, at, at});
        }
    }
    while (level.size() > 1) {
        std::vector<Box> above;
        for (std::size_t i = 0; i < level.size(); ++i) {
            if (i % kBranch == 0) {
                above.push_back(level[i]);
            }
            add(above.back(), level[i]);
        }
        pass.levels.push_back(std::exchange(level, std::move(above)));
    }
    pass.levels.push_back(std::move(level));
    return pass;
}

void StretchHalo::addTo(MapOverlay& overlay, std::pair<std::size_t, std::size_t> records,
                        const ViewTransform& view) const {
    LineMaker coarsest(view, kCoarsest, std::numeric_limits<std::size_t>::max());
    addLines(coarsest, records);
    const std::size_t most = coarsest.points() + kMostPoints;
    std::vector<HaloLine> lines = coarsest.take();
    std::size_t points = coarsest.points();
    // Finer ones have about twice the points.
    for (std::int32_t least = kCoarsest / 2; least >= kFinest && 2 * points <= most; least /= 2) {
        LineMaker finer(view, least, most);
        addLines(finer, records);
        if (finer.isFull()) {
            break;
        }
        points = finer.points();
        lines = finer.take();
    }
    for (HaloLine& line : lines) {
        overlay.emplace_back(std::move(line));
    }
}

void StretchHalo::addLines(LineMaker& maker, std::pair<std::size_t, std::size_t> records) const {
    std::size_t before = 0;
    for (const Pass& pass : passes_) {
        const auto count = static_cast<std::size_t>(pass.layer->recordCount());
        if (count > 0 && records.first < before + count && records.second >= before) {
            const std::size_t first = std::max(records.first, before) - before;
            const std::size_t last = std::min(records.second - before, count - 1);
            maker.addLines(pass, {first, last});
        }
        before += count;
    }
}

}  // namespace campora
