// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "sample_job/field_ring.h"
#include "sample_job/plane.h"

namespace campora::sample {

/// Something in the way: passes that would run into it give way and everything near it goes slowly.
struct Obstacle {
    Place at;
    double halfAlong = 0;    ///< metres before and after it over which a pass gives way
    double clearAcross = 0;  ///< metres from it that a pass keeps when it goes by
    double slowAlong = 0;    ///< metres before and after it, and
    double slowAcross = 0;   ///< metres to both sides, within which the speed is `kmh`
    double kmh = 0;
};

/// Ground on which the machine goes at another speed than elsewhere.
struct SpeedZone {
    Box box;
    double kmh = 0;
};

/// A field and how it is worked: rounds along the outline first, then passes along x from the
/// lowest y upwards, with half circles between them.
struct FieldPlan {
    /// The first edge runs up from the origin, the last one back to it along y = 0.
    Ring ring;
    double swath = 0;  ///< metres, also the distance between passes
    int headlandRounds = 1;
    double passKmh = 0;
    double headlandKmh = 0;
    double cornerKmh = 0;  ///< in the corners of the rounds
    double turnKmh = 0;    ///< between passes
    std::vector<Obstacle> obstacles;
    std::vector<SpeedZone> speedZones;
};

struct RoutePoint {
    Place at;
    double kmh = 0;        ///< greatest speed here, braking not yet thought of
    bool working = false;  ///< from here to the next point
    int pass = 0;          ///< 0 for the rounds; a turn belongs to both passes, half and half
};

/// The way of the machine, a point every few metres.
using Route = std::vector<RoutePoint>;

[[nodiscard]] Route planRoute(const FieldPlan& plan);

}  // namespace campora::sample
