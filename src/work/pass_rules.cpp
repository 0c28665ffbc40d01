// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/pass_rules.h"

#include <cmath>

#include "model/geodesy.h"
#include "model/swath_geometry.h"

namespace campora {

namespace {

double dot(const StepDirection& a, const StepDirection& b) {
    return a.x * b.x + a.y * b.y;
}

}  // namespace

StepDirection stepDirection(LonLat from, LonLat to) {
    return {(to.x - from.x) * cosineOfStep(from.y), to.y - from.y};
}

float turningAngle(const StepDirection& arriving, const StepDirection& leaving) {
    const double lengths = std::sqrt(dot(arriving, arriving)) * std::sqrt(dot(leaving, leaving));
    if (lengths == 0) {
        return 0;
    }
    // Single precision decides which turns count as exact reversals.
    const auto cosine = static_cast<float>(dot(arriving, leaving) / lengths);
    if (std::abs(cosine) >= 1) {
        return 0;
    }
    const double k = cosine;
    const double radians = 2 * std::atan(1.0) - std::atan(k / std::sqrt(1 - k * k));
    return static_cast<float>(radians * 180 / kPi);
}

bool turnsSharply(const StepDirection& arriving, const StepDirection& leaving) {
    // Forward steps, nearly all there are, need no angle.
    return dot(arriving, leaving) < 0 && turningAngle(arriving, leaving) > 90;
}

Placement PassSplitter::place(LonLat position, float swath) {
    Placement placement = Placement::Opens;
    StepDirection step;
    if (last_) {
        const double metres = stepMetres(*last_, position);
        if (isGlitch(position, metres)) {
            dropped_ = position;
            return Placement::LeftOut;
        }
        step = stepDirection(*last_, position);
        const bool breaks = metres > 3.0 * swath && metres > limits_.shortestBreak;
        if (!breaks && metres <= limits_.glitch) {
            squareMetres_ += metres * lastSwath_;
            ++steps_;
            placement = placeStep(step, position == *last_);
        }
    }
    dropped_.reset();
    last_ = position;
    lastSwath_ = swath;
    lastStep_ = step;
    return placement;
}

Placement PassSplitter::placeStep(const StepDirection& step, bool stays) const {
    if (stays) {
        return Placement::Stays;
    }
    return turnsSharply(lastStep_, step) ? Placement::Turns : Placement::Continues;
}

/// A far record is none when the record before was far as well and lies near: the machine has moved
/// to another field.
bool PassSplitter::isGlitch(LonLat position, double metres) const {
    return metres > limits_.glitch &&
           !(dropped_ && stepMetres(*dropped_, position) <= limits_.glitch);
}

}  // namespace campora
