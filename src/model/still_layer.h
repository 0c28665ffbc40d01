// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "model/gph.h"

namespace campora {

/// A layer without a course in time: a replay draws it whole before it begins. Unless it says so
/// itself, nothing of it can be pointed at, and nothing is to be said about it.
class StillLayer : public Gph {
public:
    [[nodiscard]] bool Gph_animable() const override { return false; }
    bool Gph_plotN(MapContext& /*context*/, std::int32_t /*n*/) const override { return false; }
    [[nodiscard]] float Gph_delayN(std::int32_t /*n*/) const override { return 0; }
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
