// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/still_layer.h"

namespace campora {

/// A layer that a mode of the map draws over the work: nothing of it lies under the pointer.
class UnaskedLayer : public StillLayer {
public:
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& /*view*/,
                                             const MapStyle& /*style*/, LonLat /*position*/,
                                             std::int32_t /*start*/) const override {
        return -1;
    }
    [[nodiscard]] std::string Gph_getInfo(const InfoContext& /*context*/,
                                          std::int32_t /*n*/) const override {
        return {};
    }
};

}  // namespace campora
