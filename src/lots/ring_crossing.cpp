// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/ring_crossing.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace campora {

namespace {

bool same(LonLat a, LonLat b) {
    return a.x == b.x && a.y == b.y;
}

/// Without points that repeat the one before them, the last before the first included.
std::vector<LonLat> distinct(std::span<const LonLat> ring) {
    std::vector<LonLat> points;
    for (const LonLat& point : ring) {
        if (points.empty() || !same(points.back(), point)) {
            points.push_back(point);
        }
    }
    while (points.size() > 1 && same(points.front(), points.back())) {
        points.pop_back();
    }
    return points;
}

/// Above 0 when `c` lies to the left of the way from `a` to `b`, 0 when it lies on the line.
double turn(LonLat a, LonLat b, LonLat c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// For a `c` on the line through `a` and `b`.
bool between(LonLat a, LonLat b, LonLat c) {
    return std::min(a.x, b.x) <= c.x && c.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= c.y &&
           c.y <= std::max(a.y, b.y);
}

struct Edge {
    LonLat from;
    LonLat to;
    std::size_t number = 0;
    double west = 0;
    double east = 0;
};

bool meet(const Edge& a, const Edge& b) {
    const double b1 = turn(a.from, a.to, b.from);
    const double b2 = turn(a.from, a.to, b.to);
    const double a1 = turn(b.from, b.to, a.from);
    const double a2 = turn(b.from, b.to, a.to);
    if (((b1 > 0) != (b2 > 0)) && ((a1 > 0) != (a2 > 0)) && b1 != 0 && b2 != 0 && a1 != 0 &&
        a2 != 0) {
        return true;
    }
    return (b1 == 0 && between(a.from, a.to, b.from)) || (b2 == 0 && between(a.from, a.to, b.to)) ||
           (a1 == 0 && between(b.from, b.to, a.from)) || (a2 == 0 && between(b.from, b.to, a.to));
}

/// Whether the way from `corner` to `next` runs back over the way that came from `before`.
bool turnsBack(LonLat before, LonLat corner, LonLat next) {
    const double along =
        (corner.x - before.x) * (next.x - corner.x) + (corner.y - before.y) * (next.y - corner.y);
    return turn(before, corner, next) == 0 && along < 0;
}

}  // namespace

bool ringCrossesItself(std::span<const LonLat> ring) {
    const std::vector<LonLat> points = distinct(ring);
    const std::size_t count = points.size();
    if (count < 3) {
        return false;
    }
    std::vector<Edge> edges;
    edges.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const LonLat& from = points[i];
        const LonLat& to = points[(i + 1) % count];
        if (turnsBack(from, to, points[(i + 2) % count])) {
            return true;
        }
        edges.push_back({from, to, i, std::min(from.x, to.x), std::max(from.x, to.x)});
    }
    std::sort(edges.begin(), edges.end(),
              [](const Edge& a, const Edge& b) { return a.west < b.west; });
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = i + 1; j < count && edges[j].west <= edges[i].east; ++j) {
            const std::size_t apart = (edges[i].number + count - edges[j].number) % count;
            if (apart != 1 && apart != count - 1 && meet(edges[i], edges[j])) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace campora
