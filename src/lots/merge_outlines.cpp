// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/merge_outlines.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include <polyclipping/clipper.hpp>

namespace campora {

namespace {

/// Whole numbers a degree. The library multiplies without loss up to 4e18.
constexpr double kScale = 1e10;
constexpr std::size_t kFewestPoints = 3;

ClipperLib::Path toPath(const Ring& ring) {
    ClipperLib::Path path;
    path.reserve(ring.size());
    for (const auto& [x, y] : ring) {
        path.emplace_back(std::llround(x * kScale), std::llround(y * kScale));
    }
    return path;
}

/// Whether the point lies on the way from `a` to `b`, as far as whole numbers can tell.
bool isOnTheWay(const ClipperLib::IntPoint& a, const ClipperLib::IntPoint& point,
                const ClipperLib::IntPoint& b) {
    const auto difference = [](ClipperLib::cInt from, ClipperLib::cInt to) {
        return static_cast<double>(to - from);
    };
    const double x = difference(a.X, b.X);
    const double y = difference(a.Y, b.Y);
    const double away = x * difference(a.Y, point.Y) - y * difference(a.X, point.X);
    return std::fabs(away) < std::hypot(x, y) / 2;
}

/// The library leaves some points in the middle of straight lines.
Ring toRing(const ClipperLib::Path& path) {
    Ring ring;
    ring.reserve(path.size());
    const std::size_t count = path.size();
    ClipperLib::IntPoint before = path.back();
    for (std::size_t i = 0; i < count; ++i) {
        if (isOnTheWay(before, path[i], path[(i + 1) % count])) {
            continue;
        }
        before = path[i];
        ring.push_back(
            {static_cast<double>(before.X) / kScale, static_cast<double>(before.Y) / kScale});
    }
    return ring;
}

/// Each ring alone, made to run one way round: parts of one that lie in another must not cancel
/// each other.
ClipperLib::Paths simplePaths(const Ring& ring) {
    ClipperLib::Paths simple;
    ClipperLib::SimplifyPolygon(toPath(ring), simple, ClipperLib::pftNonZero);
    return simple;
}

/// Whether some ground lies in both.
bool meet(const ClipperLib::Path& outline, const ClipperLib::Paths& ring) {
    ClipperLib::Clipper both;
    both.AddPath(outline, ClipperLib::ptClip, true);
    both.AddPaths(ring, ClipperLib::ptSubject, true);
    ClipperLib::Paths common;
    both.Execute(ClipperLib::ctIntersection, common, ClipperLib::pftNonZero,
                 ClipperLib::pftNonZero);
    return !common.empty();
}

}  // namespace

MergedOutlines mergeOutlines(std::span<const Ring> rings) {
    ClipperLib::Clipper all;
    all.StrictlySimple(true);
    MergedOutlines merged;
    std::vector<ClipperLib::Paths> parts;
    for (const Ring& ring : rings) {
        parts.push_back(simplePaths(ring));
        merged.withoutArea += all.AddPaths(parts.back(), ClipperLib::ptSubject, true) ? 0 : 1;
    }
    ClipperLib::PolyTree tree;
    all.Execute(ClipperLib::ctUnion, tree, ClipperLib::pftNonZero, ClipperLib::pftNonZero);

    ClipperLib::Paths outlines;
    for (const ClipperLib::PolyNode* outline : tree.Childs) {
        outlines.push_back(outline->Contour);
        merged.holes += outline->ChildCount();
    }
    std::stable_sort(outlines.begin(), outlines.end(), [](const auto& a, const auto& b) {
        return std::fabs(ClipperLib::Area(a)) > std::fabs(ClipperLib::Area(b));
    });
    for (const ClipperLib::Path& outline : outlines) {
        if (Ring ring = toRing(outline); ring.size() >= kFewestPoints) {
            merged.rings.push_back(std::move(ring));
            std::vector<std::size_t>& sources = merged.sources.emplace_back();
            for (std::size_t i = 0; i < parts.size(); ++i) {
                if (meet(outline, parts[i])) {
                    sources.push_back(i);
                }
            }
        }
    }
    return merged;
}

}  // namespace campora
