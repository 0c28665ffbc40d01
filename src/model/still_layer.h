// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/gph.h"

namespace campora {

/// A layer without a course in time: a replay draws it whole before it begins.
class StillLayer : public Gph {
public:
    [[nodiscard]] bool Gph_animable() const override { return false; }
    bool Gph_plotN(MapContext& /*context*/, std::int32_t /*n*/) const override { return false; }
    [[nodiscard]] float Gph_delayN(std::int32_t /*n*/) const override { return 0; }
};

}  // namespace campora
