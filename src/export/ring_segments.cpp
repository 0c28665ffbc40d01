// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/ring_segments.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>

namespace campora {

// Two edges can only meet where they share longitudes: in the order of their western ends each is
// looked at with those that begin before it ends, and no pair that meets is left out. Two cross
// when each has the ends of the other on either side; an end on an edge divides that edge there.
// Which side it is on is only believed beyond what rounding can do to the two products; what is
// nearer counts as on the line. A crossing is no place of 64-bit floats in general, and an edge
// that is led over the nearest one may meet others anew: all is looked at again until nothing is
// divided, eight times at most. Edges that come in pairs part nothing by the even-odd rule and go.
//
// Costs the sorting of the edges, then the pairs that share longitudes: few for rings as swaths and
// fields give them, the square of the corners at worst, each time over.
//
// Corners of the ring stay as they are. A crossing lies on both edges to some 1e-13 degrees, a
// hundred-thousandth of a millimetre, or to half a step of the fine grid, 0.06 mm; where along
// them, when they run nearly side by side, is less sure. What would still cross after the last time
// is as thin as that.

namespace {

using Edge = SegmentGraph::Edge;

/// Crossings that are rounded can make new ones; they are soon used up.
constexpr int kMostRounds = 8;

/// Finds nodes by their place.
class Nodes {
public:
    std::size_t at(LonLat place) {
        const auto [entry, isNew] = indices_.try_emplace({place.x, place.y}, places.size());
        if (isNew) {
            places.push_back(place);
        }
        return entry->second;
    }

    std::vector<LonLat> places;

private:
    std::map<std::pair<double, double>, std::size_t> indices_;
};

bool boxesMeet(LonLat a, LonLat b, LonLat c, LonLat d) {
    return std::min(a.x, b.x) <= std::max(c.x, d.x) && std::min(c.x, d.x) <= std::max(a.x, b.x) &&
           std::min(a.y, b.y) <= std::max(c.y, d.y) && std::min(c.y, d.y) <= std::max(a.y, b.y);
}

/// Whether `point`, on the line through a and b, lies between them.
bool isBetween(LonLat a, LonLat b, LonLat point) {
    const double along = (point.x - a.x) * (b.x - a.x) + (point.y - a.y) * (b.y - a.y);
    const double whole = (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
    return along > 0 && along < whole;
}

/// Where the segments ab and cd, which cross, do so.
LonLat crossing(LonLat a, LonLat b, LonLat c, LonLat d) {
    const double rx = b.x - a.x;
    const double ry = b.y - a.y;
    const double sx = d.x - c.x;
    const double sy = d.y - c.y;
    const double t = ((c.x - a.x) * sy - (c.y - a.y) * sx) / (rx * sy - ry * sx);
    return {a.x + t * rx, a.y + t * ry};
}

/// Finds where edges meet, and divides them there.
class Divider {
public:
    Divider(Nodes& nodes, std::vector<Edge>& edges, Corners corners)
        : nodes_(nodes), edges_(edges), corners_(corners), cuts_(edges.size()) {}

    /// False when none meet but in their ends.
    bool divide() {
        std::vector<std::size_t> order(edges_.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::sort(order.begin(), order.end(),
                  [this](std::size_t a, std::size_t b) { return west(a) < west(b); });
        for (std::size_t i = 0; i < order.size(); ++i) {
            for (std::size_t j = i + 1; j < order.size() && west(order[j]) <= east(order[i]); ++j) {
                meet(order[i], order[j]);
            }
        }
        const bool any =
            std::any_of(cuts_.begin(), cuts_.end(), [](const auto& cuts) { return !cuts.empty(); });
        if (any) {
            rebuild();
        }
        return any;
    }

private:
    [[nodiscard]] LonLat place(std::size_t node) const { return nodes_.places[node]; }
    [[nodiscard]] double west(std::size_t edge) const {
        return std::min(place(edges_[edge].first).x, place(edges_[edge].second).x);
    }
    [[nodiscard]] double east(std::size_t edge) const {
        return std::max(place(edges_[edge].first).x, place(edges_[edge].second).x);
    }

    void cut(std::size_t edge, std::size_t node) {
        if (node != edges_[edge].first && node != edges_[edge].second) {
            cuts_[edge].push_back(node);
        }
    }
    /// The turn towards `node`; 0 and a cut where it lies on the edge.
    int sideOf(std::size_t edge, std::size_t node) {
        const auto [from, to] = edges_[edge];
        if (node == from || node == to) {
            return 0;
        }
        const int side = turnOf(place(from), place(to), place(node));
        if (side == 0 && isBetween(place(from), place(to), place(node))) {
            cut(edge, node);
        }
        return side;
    }
    void meet(std::size_t one, std::size_t other) {
        const auto [a, b] = edges_[one];
        const auto [c, d] = edges_[other];
        if (!boxesMeet(place(a), place(b), place(c), place(d))) {
            return;
        }
        const int sides = sideOf(one, c) * sideOf(one, d);
        const int otherSides = sideOf(other, a) * sideOf(other, b);
        if (sides >= 0 || otherSides >= 0) {
            return;
        }
        LonLat point = crossing(place(a), place(b), place(c), place(d));
        if (corners_ == Corners::OnFineGrid) {
            point = onFineGrid(point);
        }
        const std::size_t node = nodes_.at(point);
        cut(one, node);
        cut(other, node);
    }
    void rebuild() {
        std::vector<Edge> divided;
        for (std::size_t edge = 0; edge < edges_.size(); ++edge) {
            const LonLat start = place(edges_[edge].first);
            const auto distance = [&](std::size_t node) {
                return std::hypot(place(node).x - start.x, place(node).y - start.y);
            };
            std::vector<std::size_t>& cuts = cuts_[edge];
            std::sort(cuts.begin(), cuts.end(), [&](std::size_t one, std::size_t other) {
                return distance(one) < distance(other);
            });
            std::size_t from = edges_[edge].first;
            cuts.push_back(edges_[edge].second);
            for (const std::size_t to : cuts) {
                if (to != from) {
                    divided.emplace_back(from, to);
                }
                from = to;
            }
        }
        edges_ = std::move(divided);
    }

    Nodes& nodes_;
    std::vector<Edge>& edges_;
    Corners corners_;
    std::vector<std::vector<std::size_t>> cuts_;
};

/// Keeps one of each that is there an odd number of times.
void dropPairs(std::vector<Edge>& edges) {
    for (Edge& edge : edges) {
        if (edge.second < edge.first) {
            std::swap(edge.first, edge.second);
        }
    }
    std::sort(edges.begin(), edges.end());
    std::vector<Edge> kept;
    for (const Edge& edge : edges) {
        if (!kept.empty() && kept.back() == edge) {
            kept.pop_back();
        } else {
            kept.push_back(edge);
        }
    }
    edges = std::move(kept);
}

}  // namespace

int turnOf(LonLat a, LonLat b, LonLat c) {
    const double left = (b.x - a.x) * (c.y - a.y);
    const double right = (b.y - a.y) * (c.x - a.x);
    constexpr double kLost = 4 * std::numeric_limits<double>::epsilon();
    const double turn = left - right;
    if (std::abs(turn) <= kLost * (std::abs(left) + std::abs(right))) {
        return 0;
    }
    return turn > 0 ? 1 : -1;
}

double twiceClosedArea(std::span<const LonLat> ring) {
    double sum = 0;
    double size = 0;
    const LonLat origin = ring.front();
    for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
        const double one = (ring[i].x - origin.x) * (ring[i + 1].y - origin.y);
        const double other = (ring[i + 1].x - origin.x) * (ring[i].y - origin.y);
        sum += one - other;
        size += std::abs(one) + std::abs(other);
    }
    constexpr double kLost = 16 * std::numeric_limits<double>::epsilon();
    return std::abs(sum) <= kLost * size ? 0 : sum;
}

SegmentGraph dividedSegments(std::span<const LonLat> points, Corners corners) {
    Nodes nodes;
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < points.size(); ++i) {
        edges.emplace_back(nodes.at(points[i]), nodes.at(points[(i + 1) % points.size()]));
    }
    bool divided = false;
    for (int round = 0; round < kMostRounds && Divider(nodes, edges, corners).divide(); ++round) {
        divided = true;
    }
    dropPairs(edges);
    const bool plain =
        !divided && edges.size() == points.size() && nodes.places.size() == points.size();
    return {std::move(nodes.places), std::move(edges), plain};
}

}  // namespace campora
