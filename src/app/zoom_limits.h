// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// Metres a canvas unit where zooming in ends: a tenth of a metre a pixel.
inline constexpr float kFinestScale = 0.1F / 15;

}  // namespace campora
