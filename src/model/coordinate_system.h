// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace campora {

/// What the file beside a map (".prj") says about its coordinates; empty where it says nothing.
struct CoordinateSystem {
    /// Name of the projection or of the projected system; empty for degrees.
    std::string projection;
    std::string datum;

    bool operator==(const CoordinateSystem&) const = default;
};

/// `text`: well-known text, of either version. What is not understood is left empty.
[[nodiscard]] CoordinateSystem coordinateSystemOf(std::string_view text);

/// Whether degrees of the datum are those of receivers, to a metre or two; so is an unknown one.
[[nodiscard]] bool isWorldDatum(std::string_view datum);

}  // namespace campora
