// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "base/lon_lat.h"

namespace campora {

/// Something that says what dose the ground is to have: a prescription. Channels count from 0.
class DoseSource {
public:
    virtual ~DoseSource() = default;

    [[nodiscard]] virtual int doseChannels() const = 0;
    /// A hectare; 0 where nothing is to be applied, none where nothing is said. Throws
    /// `std::out_of_range` for a bad channel.
    [[nodiscard]] virtual std::optional<float> doseAt(LonLat position, int channel) const = 0;
};

}  // namespace campora
