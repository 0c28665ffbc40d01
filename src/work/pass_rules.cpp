// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/pass_rules.h"

#include <algorithm>
#include <cmath>

#include "model/geodesy.h"
#include "work/swath_geometry.h"

namespace campora {

namespace {

constexpr float kSharpDegrees = 90;

/// Cosine of the bend at `b`, none where a step has no length. Single precision: which turns count
/// as exact reversals depends on it.
std::optional<float> bendCosine(LonLat a, LonLat b, LonLat c) {
    const double x1 = (b.x - a.x) * std::cos(a.y * kPi / 180);
    const double y1 = b.y - a.y;
    const double x2 = (c.x - b.x) * std::cos(b.y * kPi / 180);
    const double y2 = c.y - b.y;
    const double lengths = std::sqrt(x1 * x1 + y1 * y1) * std::sqrt(x2 * x2 + y2 * y2);
    if (lengths == 0) {
        return std::nullopt;
    }
    return std::clamp(static_cast<float>((x1 * x2 + y1 * y2) / lengths), -1.0F, 1.0F);
}

float angleOfCosine(float cosine) {
    if (std::abs(cosine) == 1) {
        return 0;
    }
    const double k = cosine;
    const double radians = 2 * std::atan(1.0) - std::atan(k / std::sqrt(1 - k * k));
    return static_cast<float>(radians * 180 / kPi);
}

}  // namespace

float turningAngle(LonLat a, LonLat b, LonLat c) {
    const std::optional<float> cosine = bendCosine(a, b, c);
    return cosine ? angleOfCosine(*cosine) : 0;
}

bool turnsSharply(LonLat a, LonLat b, LonLat c) {
    const std::optional<float> cosine = bendCosine(a, b, c);
    if (!cosine || *cosine >= 0 || *cosine == -1) {
        return false;
    }
    // Angles a hair above 90 degrees round to 90; those of larger cosines do not come near.
    constexpr float kClearlySharp = -1e-6F;
    return *cosine < kClearlySharp || angleOfCosine(*cosine) > kSharpDegrees;
}

Placement PassSplitter::place(LonLat position, float swath) {
    Placement placement = Placement::Opens;
    if (kept_ > 0) {
        const double metres = stepMetres(last_, position);
        if (isGlitch(position, metres)) {
            dropped_ = position;
            return Placement::LeftOut;
        }
        const bool breaks = metres > 3.0 * swath && metres > limits_.shortestBreak;
        if (!breaks && metres <= limits_.glitch) {
            placement = placeStep(position, metres);
        }
    }
    dropped_.reset();
    beforeLast_ = last_;
    last_ = position;
    lastSwath_ = swath;
    kept_ = std::min(kept_ + 1, 2);
    return placement;
}

Placement PassSplitter::placeStep(LonLat position, double metres) {
    squareMetres_ += metres * lastSwath_;
    ++steps_;
    if (position == last_) {
        return Placement::Stays;
    }
    const bool turns = kept_ > 1 && turnsSharply(beforeLast_, last_, position);
    return turns ? Placement::Turns : Placement::Continues;
}

/// A far record is none when the record before was far as well and lies near: the machine has moved
/// to another field.
bool PassSplitter::isGlitch(LonLat position, double metres) const {
    return metres > limits_.glitch &&
           !(dropped_ && stepMetres(*dropped_, position) <= limits_.glitch);
}

}  // namespace campora
