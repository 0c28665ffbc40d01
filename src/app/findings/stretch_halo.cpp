// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/stretch_halo.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>
#include <vector>

namespace campora {

namespace {

/// Canvas units between two points of a line, where there are few of them.
constexpr std::int32_t kFinest = 30;
constexpr std::int32_t kCoarsest = 960;
/// Points that are painted in no time.
constexpr std::size_t kMostPoints = 4000;

bool isFar(CanvasPoint a, CanvasPoint b, std::int64_t least) {
    return std::abs(std::int64_t{a.x} - b.x) >= least || std::abs(std::int64_t{a.y} - b.y) >= least;
}

/// Lines of the part of a pass that may touch the canvas.
void addLines(std::vector<HaloLine>& lines, const WorkLayer& pass,
              std::pair<std::int32_t, std::int32_t> records, const ViewTransform& view) {
    bool isOpen = false;
    LonLat before = pass.recordN(records.first).position;
    for (std::int32_t n = records.first; n <= records.second; ++n) {
        const LonLat at = pass.recordN(n).position;
        const bool touches = view.mayTouch(before, at, 0);
        if (touches && !isOpen) {
            lines.push_back({{view.mapToScreen(before.x, before.y)}});
        }
        const CanvasPoint point = touches ? view.mapToScreen(at.x, at.y) : CanvasPoint{};
        if (touches && (n == records.second || isFar(lines.back().points.back(), point, kFinest))) {
            lines.back().points.push_back(point);
        }
        isOpen = touches;
        before = at;
    }
}

std::size_t pointsOf(const std::vector<HaloLine>& lines) {
    std::size_t points = 0;
    for (const HaloLine& line : lines) {
        points += line.points.size();
    }
    return points;
}

void thin(HaloLine& line, std::int32_t least) {
    std::vector<CanvasPoint> kept{line.points.front()};
    for (std::size_t i = 1; i < line.points.size(); ++i) {
        if (i + 1 == line.points.size() || isFar(kept.back(), line.points[i], least)) {
            kept.push_back(line.points[i]);
        }
    }
    line.points = std::move(kept);
}

}  // namespace

void addHalo(MapOverlay& overlay, std::span<const WorkLayer* const> passes,
             std::pair<std::size_t, std::size_t> records, const ViewTransform& view) {
    std::vector<HaloLine> lines;
    std::size_t before = 0;
    for (const WorkLayer* pass : passes) {
        const auto count = static_cast<std::size_t>(pass->recordCount());
        if (count > 0 && records.first < before + count && records.second >= before) {
            const std::size_t first = std::max(records.first, before) - before;
            const std::size_t last = std::min(records.second - before, count - 1);
            addLines(lines, *pass,
                     {static_cast<std::int32_t>(first), static_cast<std::int32_t>(last)}, view);
        }
        before += count;
    }
    for (std::int32_t least = 2 * kFinest; least <= kCoarsest && pointsOf(lines) > kMostPoints;
         least *= 2) {
        for (HaloLine& line : lines) {
            thin(line, least);
        }
    }
    for (HaloLine& line : lines) {
        overlay.emplace_back(std::move(line));
    }
}

}  // namespace campora
