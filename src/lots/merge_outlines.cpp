// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/merge_outlines.h"

#include <algorithm>
#include <cmath>

#include <polyclipping/clipper.hpp>

namespace campora {

namespace {

/// Whole numbers a degree. The library multiplies without loss up to 4e18.
constexpr double kScale = 1e10;

ClipperLib::Path toPath(const Ring& ring) {
    ClipperLib::Path path;
    path.reserve(ring.size());
    for (const auto& [x, y] : ring) {
        path.emplace_back(std::llround(x * kScale), std::llround(y * kScale));
    }
    return path;
}

Ring toRing(const ClipperLib::Path& path) {
    Ring ring;
    ring.reserve(path.size());
    for (const ClipperLib::IntPoint& point : path) {
        ring.push_back(
            {static_cast<double>(point.X) / kScale, static_cast<double>(point.Y) / kScale});
    }
    return ring;
}

/// Each ring alone, made to run one way round: parts of one that lie in another must not cancel
/// each other.
void addRing(const Ring& ring, ClipperLib::Clipper& all) {
    ClipperLib::Paths simple;
    ClipperLib::SimplifyPolygon(toPath(ring), simple, ClipperLib::pftNonZero);
    all.AddPaths(simple, ClipperLib::ptSubject, true);
}

}  // namespace

MergedOutlines mergeOutlines(std::span<const Ring> rings) {
    ClipperLib::Clipper all;
    all.StrictlySimple(true);
    for (const Ring& ring : rings) {
        addRing(ring, all);
    }
    ClipperLib::PolyTree tree;
    all.Execute(ClipperLib::ctUnion, tree, ClipperLib::pftNonZero, ClipperLib::pftNonZero);

    MergedOutlines merged;
    ClipperLib::Paths outlines;
    for (const ClipperLib::PolyNode* outline : tree.Childs) {
        outlines.push_back(outline->Contour);
        merged.holes += outline->ChildCount();
    }
    std::stable_sort(outlines.begin(), outlines.end(), [](const auto& a, const auto& b) {
        return std::fabs(ClipperLib::Area(a)) > std::fabs(ClipperLib::Area(b));
    });
    for (const ClipperLib::Path& outline : outlines) {
        merged.rings.push_back(toRing(outline));
    }
    return merged;
}

}  // namespace campora
