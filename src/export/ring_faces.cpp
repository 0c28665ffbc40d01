// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/ring_faces.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <utility>

#include "model/ring_geometry.h"

namespace campora {

// Edges that share ends at most part the plane into faces. Whoever walks along an edge and takes
// the next one by the turn in every node goes round the one face on the right and comes back; each
// way along each edge belongs to one such walk, so that every border of every face is found, once.
// A face is inside when a way out of it crosses an odd number of edges, and that is counted beside
// the middle of the widest edge of the border, where it is farthest from any node. Where a border
// meets itself in a node it is two rings that touch there. A hole belongs to the smallest ring
// round it.
//
// Costs the sorting of the ways in the nodes, and all edges again for every border: next to nothing
// for rings that cross themselves a few times, the square of the edges at worst. Rings that do not
// cross themselves do not come here.
//
// No place is computed: all corners are those of the graph, whose accuracy is that of the result.
// Rings whose area is lost in the last digits of its corners are left out.

namespace {

/// A ring and its `twiceClosedArea`.
struct Loop {
    ClosedRing ring;
    double twiceArea = 0;
};

/// Walks along the edges with a face always on the right. Edge i is the ways 2 i, from its first to
/// its second node, and 2 i + 1, back.
class FaceWalk {
public:
    explicit FaceWalk(const SegmentGraph& graph)
        : graph_(graph), leaving_(graph.nodes.size()), walked_(2 * graph.edges.size()) {
        for (std::size_t way = 0; way < walked_.size(); ++way) {
            leaving_[from(way)].push_back(way);
        }
        for (std::vector<std::size_t>& ways : leaving_) {
            std::sort(ways.begin(), ways.end(), [this](std::size_t one, std::size_t other) {
                return direction(one) < direction(other);
            });
        }
    }

    /// The rings round odd faces, clockwise, and those round holes in them, the other way.
    std::vector<Loop> loops() {
        std::vector<Loop> found;
        for (std::size_t way = 0; way < walked_.size(); ++way) {
            if (walked_[way]) {
                continue;
            }
            const std::vector<std::size_t> cycle = walk(way);
            if (hasOddOnRight(cycle)) {
                splitAtNodes(cycle, found);
            }
        }
        return found;
    }

private:
    [[nodiscard]] std::size_t from(std::size_t way) const {
        const SegmentGraph::Edge& edge = graph_.edges[way / 2];
        return way % 2 == 0 ? edge.first : edge.second;
    }
    [[nodiscard]] std::size_t to(std::size_t way) const { return from(way ^ 1U); }
    [[nodiscard]] LonLat place(std::size_t node) const { return graph_.nodes[node]; }
    [[nodiscard]] double direction(std::size_t way) const {
        const LonLat start = place(from(way));
        const LonLat end = place(to(way));
        return std::atan2(end.y - start.y, end.x - start.x);
    }
    /// The next way round the same face: the first one against the clock from where it came.
    [[nodiscard]] std::size_t next(std::size_t way) const {
        const std::vector<std::size_t>& ways = leaving_[to(way)];
        const auto back = std::find(ways.begin(), ways.end(), way ^ 1U);
        const auto following = std::next(back);
        return following == ways.end() ? ways.front() : *following;
    }
    std::vector<std::size_t> walk(std::size_t start) {
        std::vector<std::size_t> cycle;
        for (std::size_t way = start; !walked_[way]; way = next(way)) {
            walked_[way] = true;
            cycle.push_back(way);
        }
        return cycle;
    }
    [[nodiscard]] double width(std::size_t way) const {
        return std::abs(place(to(way)).x - place(from(way)).x);
    }
    /// Whether a way north out of the face beside `cycle` crosses an odd number of edges. It starts
    /// at the widest edge, where it is farthest from any node.
    [[nodiscard]] bool hasOddOnRight(const std::vector<std::size_t>& cycle) const {
        const std::size_t way = *std::max_element(
            cycle.begin(), cycle.end(),
            [this](std::size_t one, std::size_t other) { return width(one) < width(other); });
        const LonLat start = place(from(way));
        const LonLat end = place(to(way));
        const LonLat middle{(start.x + end.x) / 2, (start.y + end.y) / 2};
        // On the way west the right is the north; on the way east the edge itself is crossed too.
        bool isOdd = start.x < end.x;
        for (std::size_t edge = 0; edge < graph_.edges.size(); ++edge) {
            const LonLat a = place(graph_.edges[edge].first);
            const LonLat b = place(graph_.edges[edge].second);
            if (edge != way / 2 && (a.x > middle.x) != (b.x > middle.x)) {
                const double y = a.y + (middle.x - a.x) * (b.y - a.y) / (b.x - a.x);
                isOdd = isOdd != (y > middle.y);
            }
        }
        return isOdd;
    }
    /// A face that touches itself in a node gives a ring on either side of it.
    void splitAtNodes(const std::vector<std::size_t>& cycle, std::vector<Loop>& found) const {
        std::vector<std::size_t> open;
        std::map<std::size_t, std::size_t> positions;  // of the nodes in `open`
        for (const std::size_t way : cycle) {
            open.push_back(from(way));
            positions[open.back()] = open.size() - 1;
            const auto met = positions.find(to(way));
            if (met == positions.end()) {
                continue;
            }
            const std::size_t begin = met->second;
            addLoop(std::span(open).subspan(begin), found);
            for (std::size_t i = begin; i < open.size(); ++i) {
                positions.erase(open[i]);
            }
            open.resize(begin);
        }
    }
    void addLoop(std::span<const std::size_t> nodes, std::vector<Loop>& found) const {
        Loop loop;
        for (const std::size_t node : nodes) {
            loop.ring.push_back(place(node));
        }
        loop.ring.push_back(loop.ring.front());
        loop.twiceArea = twiceClosedArea(loop.ring);
        if (loop.twiceArea != 0) {
            found.push_back(std::move(loop));
        }
    }

    const SegmentGraph& graph_;
    std::vector<std::vector<std::size_t>> leaving_;  // of every node, against the clock
    std::vector<bool> walked_;
};

/// The smallest outer ring round the hole; `outers.size()` when there is none.
std::size_t ownerOf(const Loop& hole, std::span<const Loop> outers) {
    const LonLat a = hole.ring[0];
    const LonLat b = hole.ring[1];
    const LonLat middle{(a.x + b.x) / 2, (a.y + b.y) / 2};
    std::size_t owner = outers.size();
    for (std::size_t i = 0; i < outers.size(); ++i) {
        const std::span<const LonLat> open(outers[i].ring.data(), outers[i].ring.size() - 1);
        const bool isSmaller = owner == outers.size() ||
                               std::abs(outers[i].twiceArea) < std::abs(outers[owner].twiceArea);
        if (isSmaller && pointInRing(open, middle)) {
            owner = i;
        }
    }
    return owner;
}

}  // namespace

std::vector<ValidPolygon> oddFaces(const SegmentGraph& graph) {
    std::vector<Loop> loops = FaceWalk(graph).loops();
    const auto firstHole = std::stable_partition(
        loops.begin(), loops.end(), [](const Loop& loop) { return loop.twiceArea < 0; });
    const std::span<const Loop> outers(loops.begin(), firstHole);
    std::vector<ValidPolygon> polygons;
    for (const Loop& outer : outers) {
        polygons.push_back({outer.ring, {}});
    }
    for (auto hole = firstHole; hole != loops.end(); ++hole) {
        const std::size_t owner = ownerOf(*hole, outers);
        if (owner < polygons.size()) {
            polygons[owner].holes.push_back(hole->ring);
        }
    }
    return polygons;
}

}  // namespace campora
