// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/column_doses.h"

#include <cstddef>
#include <stdexcept>

namespace campora {

std::optional<float> ColumnDoses::doseAt(LonLat position, int channel) const {
    if (channel != 0) {
        throw std::out_of_range("ColumnDoses.doseAt");
    }
    const std::int32_t zone = zones_.polygonIndexAt(position);
    if (zone < 0 || !doses_[static_cast<std::size_t>(zone)]) {
        return std::nullopt;
    }
    return static_cast<float>(*doses_[static_cast<std::size_t>(zone)]);
}

}  // namespace campora
