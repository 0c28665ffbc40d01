// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "sample_job/route.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace campora::sample {

namespace {

constexpr double kSpacing = 2;       ///< metres between the points of a straight line
constexpr int kCurvePoints = 12;     ///< points of a corner and of half a turn
constexpr double kCornerReach = 18;  ///< metres of both edges that a corner takes
constexpr double kBendReach = 60;    ///< the same for gentle bends
constexpr double kBeyondPass = 3;    ///< metres from the end of a pass to its turn
constexpr int kSmoothing = 6;        ///< points to both sides that even out a swerve

/// The points of one route in the making.
class RouteBuilder {
public:
    explicit RouteBuilder(const FieldPlan& plan)
        : plan_(plan), inner_(movedInwards(plan.ring, plan.swath * plan.headlandRounds)) {}

    [[nodiscard]] Route build() {
        addRounds();
        double heading = 1;
        for (double y = firstPassY(); hasPass(y); y += plan_.swath) {
            addTurn(y, heading);
            addPass(y, heading);
            heading = -heading;
        }
        return std::move(route_);
    }

private:
    [[nodiscard]] double firstPassY() const { return plan_.swath * (plan_.headlandRounds + 0.5); }

    /// Pairs of ends of the pass at y. The ground between the last full pass and the rounds is
    /// taken with when it is wider than a quarter of the swath; scraps are not worth the way.
    [[nodiscard]] std::vector<double> passEnds(double y) const {
        const std::vector<double> all = crossings(inner_, y - plan_.swath / 4);
        std::vector<double> ends;
        for (std::size_t i = 0; i + 1 < all.size(); i += 2) {
            if (all[i + 1] - all[i] > 2 * plan_.swath) {
                ends.insert(ends.end(), {all[i], all[i + 1]});
            }
        }
        return ends;
    }

    [[nodiscard]] bool hasPass(double y) const { return !passEnds(y).empty(); }

    void add(Place at, double kmh, bool working) { route_.push_back({at, kmh, working, pass_}); }

    void addStraight(Place to, double kmh, bool working) {
        const Place from = route_.back().at;
        const int steps = std::max(1, static_cast<int>(length(to - from) / kSpacing));
        for (int i = 1; i <= steps; ++i) {
            add(from + (to - from) * (static_cast<double>(i) / steps), kmh, working);
        }
    }

    /// The way along all rounds, corners not yet rounded.
    [[nodiscard]] std::vector<Place> roundCorners() const {
        std::vector<Place> corners;
        for (int round = 0; round < plan_.headlandRounds; ++round) {
            const double inside = plan_.swath * (round + 0.5);
            const Ring ring = movedInwards(plan_.ring, inside);
            if (round == 0) {
                corners.push_back({ring[0].x, plan_.swath / 8});
            }
            corners.insert(corners.end(), ring.begin() + 1, ring.end());
            // Back at its start: on to the next round, or up to the first pass.
            const bool last = round + 1 == plan_.headlandRounds;
            corners.push_back({ring[0].x + plan_.swath * (last ? 0.5 : 1), ring[0].y});
        }
        return corners;
    }

    void addCorner(Place before, Place corner, Place after) {
        const Place in = direction(corner - before);
        const Place out = direction(after - corner);
        const bool sharp = dot(in, out) < 0.9;
        const double most = sharp ? kCornerReach : kBendReach;
        const Place start = corner - in * std::min(most, length(corner - before) / 2);
        const Place end = corner + out * std::min(most, length(after - corner) / 2);
        addStraight(start, plan_.headlandKmh, true);
        for (int i = 1; i <= kCurvePoints; ++i) {
            // Quadratic Bezier curve.
            const double t = static_cast<double>(i) / kCurvePoints;
            add(start * ((1 - t) * (1 - t)) + corner * (2 * t * (1 - t)) + end * (t * t),
                sharp ? plan_.cornerKmh : plan_.headlandKmh, true);
        }
    }

    void addRounds() {
        const std::vector<Place> corners = roundCorners();
        add(corners.front(), plan_.headlandKmh, true);
        for (std::size_t i = 1; i + 1 < corners.size(); ++i) {
            addCorner(corners[i - 1], corners[i], corners[i + 1]);
        }
        addStraight(corners.back(), plan_.headlandKmh, true);
    }

    /// From the last point, which heads against `heading`, to the beginning of the pass at y.
    void addTurn(double y, double heading) {
        const std::vector<double> ends = passEnds(y);
        const Place from = route_.back().at;
        const Place to{heading > 0 ? ends.front() : ends.back(), y};
        route_.back().working = false;
        const double outermost = heading > 0 ? std::min(from.x, to.x) : std::max(from.x, to.x);
        const double x = outermost - heading * kBeyondPass;
        const double radius = (to.y - from.y) / 2;
        addStraight({x, from.y}, plan_.turnKmh, false);
        for (int i = 1 - kCurvePoints; i <= kCurvePoints; ++i) {
            // The rational form of the circle: t from -1 to 1 is half of it.
            const double t = static_cast<double>(i) / kCurvePoints;
            pass_ += i == 1 ? 1 : 0;
            add({x - heading * radius * (1 - t * t) / (1 + t * t),
                 from.y + radius + radius * 2 * t / (1 + t * t)},
                plan_.turnKmh, false);
        }
        addStraight(to, plan_.turnKmh, false);
    }

    [[nodiscard]] static double givingWay(Place at, const Obstacle& obstacle) {
        const double u = (at.x - obstacle.at.x) / obstacle.halfAlong;
        if (std::abs(u) >= 1) {
            return at.y;
        }
        const double distance = at.y - obstacle.at.y;
        const double kept = obstacle.clearAcross * (1 - u * u) * (1 - u * u);
        return kept <= std::abs(distance) ? at.y : obstacle.at.y + (distance < 0 ? -kept : kept);
    }

    [[nodiscard]] double speedAt(Place at) const {
        double kmh = plan_.passKmh;
        for (const SpeedZone& zone : plan_.speedZones) {
            kmh = zone.box.contains(at) ? zone.kmh : kmh;
        }
        for (const Obstacle& obstacle : plan_.obstacles) {
            const bool near = std::abs(at.x - obstacle.at.x) < obstacle.slowAlong &&
                              std::abs(at.y - obstacle.at.y) < obstacle.slowAcross;
            kmh = near ? std::min(kmh, obstacle.kmh) : kmh;
        }
        return kmh;
    }

    void addPass(double y, double heading) {
        const std::vector<double> ends = passEnds(y);
        const int steps = static_cast<int>((ends.back() - ends.front()) / kSpacing);
        const double start = heading > 0 ? ends.front() : ends.back();
        const std::size_t first = route_.size();
        for (int i = 0; i <= steps; ++i) {
            const double x = start + heading * i * kSpacing;
            // An odd number of ends to the left: between the two of a pair.
            const auto left =
                std::count_if(ends.begin(), ends.end(), [x](double end) { return end <= x; });
            Place at{x, y};
            for (const Obstacle& obstacle : plan_.obstacles) {
                at.y = givingWay(at, obstacle);
            }
            add(at, speedAt({x, y}), left % 2 == 1);
        }
        route_[first].working = true;
        smooth(first);
    }

    /// Evens out the sideways steps of the points from `first` on.
    void smooth(std::size_t first) {
        std::vector<double> ys;
        for (std::size_t i = first; i < route_.size(); ++i) {
            ys.push_back(route_[i].at.y);
        }
        const int n = static_cast<int>(ys.size());
        for (int i = 0; i < n; ++i) {
            const int reach = std::min({kSmoothing, i, n - 1 - i});
            double sum = 0;
            for (int k = i - reach; k <= i + reach; ++k) {
                sum += ys[static_cast<std::size_t>(k)];
            }
            route_[first + static_cast<std::size_t>(i)].at.y = sum / (2 * reach + 1);
        }
    }

    const FieldPlan& plan_;
    Ring inner_;
    Route route_;
    int pass_ = 0;
};

}  // namespace

Route planRoute(const FieldPlan& plan) {
    return RouteBuilder(plan).build();
}

}  // namespace campora::sample
