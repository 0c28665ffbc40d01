// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace campora {

/// How the summaries of grids and of prescriptions name and write what they say of each channel.

/// "Superficie (C 1)"; `channel` counts from 0.
[[nodiscard]] std::string channelEntry(std::string_view what, std::size_t channel);

/// At most this many significant digits, no trailing zeros.
[[nodiscard]] std::string summaryFigure(double value, char symbol, int digits = 15);

}  // namespace campora
