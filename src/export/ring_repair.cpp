// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/ring_repair.h"

#include <algorithm>
#include <cmath>

#include "export/ring_faces.h"
#include "export/ring_segments.h"

namespace campora {

namespace {

/// The corners in order, none repeated; empty when one is no place.
void collectCorners(std::span<const LonLat> ring, Corners corners, std::vector<LonLat>& points) {
    points.clear();
    for (const LonLat& point : ring) {
        if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
            points.clear();
            return;
        }
        const LonLat corner = corners == Corners::OnFineGrid ? onFineGrid(point) : point;
        if (points.empty() || points.back() != corner) {
            points.push_back(corner);
        }
    }
    while (points.size() > 1 && points.front() == points.back()) {
        points.pop_back();
    }
}

/// Whether all corners turn the same way, by far the usual case; of at most four corners, as those
/// of a star do so too.
bool isConvex(std::span<const LonLat> points) {
    if (points.size() != 3 && points.size() != 4) {
        return false;
    }
    int turns = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        turns +=
            turnOf(points[i], points[(i + 1) % points.size()], points[(i + 2) % points.size()]);
    }
    return std::abs(turns) == static_cast<int>(points.size());
}

ClosedRing clockwise(std::span<const LonLat> points) {
    ClosedRing ring(points.begin(), points.end());
    ring.push_back(points.front());
    if (twiceClosedArea(ring) > 0) {
        std::reverse(ring.begin(), ring.end());
    }
    return ring;
}

}  // namespace

void collectValidPolygons(std::span<const LonLat> ring, Corners corners,
                          std::vector<ValidPolygon>& polygons) {
    polygons.clear();
    std::vector<LonLat> points;
    collectCorners(ring, corners, points);
    if (points.size() < 3) {
        return;
    }
    if (isConvex(points)) {
        polygons.push_back({clockwise(points), {}});
        return;
    }
    const SegmentGraph graph = dividedSegments(points, corners);
    if (graph.isPlainRing) {
        polygons.push_back({clockwise(points), {}});
        return;
    }
    polygons = oddFaces(graph);
}

}  // namespace campora
