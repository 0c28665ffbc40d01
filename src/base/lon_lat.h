// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// A position in decimal degrees: x is the longitude (east positive), y the latitude (north
/// positive).
struct LonLat {
    double x = 0;
    double y = 0;

    bool operator==(const LonLat&) const = default;
};

}  // namespace campora
