// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>

namespace campora::sample {

/// A place on the plane of one field, metres: x along the passes, y across them to the left of x.
/// Everything here is built from sums, products, quotients and square roots, which are the same on
/// every machine to the last bit; sines and cosines are not.
struct Place {
    double x = 0;
    double y = 0;
};

[[nodiscard]] inline Place operator+(Place a, Place b) {
    return {a.x + b.x, a.y + b.y};
}
[[nodiscard]] inline Place operator-(Place a, Place b) {
    return {a.x - b.x, a.y - b.y};
}
[[nodiscard]] inline Place operator*(Place a, double factor) {
    return {a.x * factor, a.y * factor};
}
[[nodiscard]] inline double dot(Place a, Place b) {
    return a.x * b.x + a.y * b.y;
}
[[nodiscard]] inline double cross(Place a, Place b) {
    return a.x * b.y - a.y * b.x;
}
[[nodiscard]] inline double length(Place a) {
    return std::sqrt(dot(a, a));
}
/// `a` with length 1; `a` must not be zero.
[[nodiscard]] inline Place direction(Place a) {
    return a * (1 / length(a));
}

/// A rectangle along the axes of the field.
struct Box {
    Place from;
    Place to;

    [[nodiscard]] bool contains(Place p) const {
        return p.x >= from.x && p.x < to.x && p.y >= from.y && p.y < to.y;
    }
};

}  // namespace campora::sample
