// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "lots/lot.h"
#include "support/temp_folder.h"

namespace campora {

/// Of so many degrees, from its south-west corner against the clock.
[[nodiscard]] inline std::vector<LonLat> squareRing(double west, double south, double side) {
    return {{west, south}, {west + side, south}, {west + side, south + side}, {west, south + side}};
}

inline std::string writeLot(const TempFolder& folder, const std::string& name,
                            const std::vector<LonLat>& vertices,
                            const std::string& description = "") {
    return folder.write(name, encodeLot(vertices, description));
}

}  // namespace campora
