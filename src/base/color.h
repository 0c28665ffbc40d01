// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace campora {

/// A colour as one number 0x00BBGGRR: red in the low byte.
struct Color {
    std::uint32_t value = 0;

    [[nodiscard]] static constexpr Color rgb(int red, int green, int blue) {
        return {static_cast<std::uint32_t>(red) | (static_cast<std::uint32_t>(green) << 8U) |
                (static_cast<std::uint32_t>(blue) << 16U)};
    }
    /// Components 0 to 255.
    [[nodiscard]] constexpr int red() const { return static_cast<int>(value & 0xFFU); }
    [[nodiscard]] constexpr int green() const { return static_cast<int>((value >> 8U) & 0xFFU); }
    [[nodiscard]] constexpr int blue() const { return static_cast<int>((value >> 16U) & 0xFFU); }

    /// Of the same hue, for an edge around what has this colour.
    [[nodiscard]] constexpr Color darker() const {
        return rgb(red() * 5 / 9, green() * 5 / 9, blue() * 5 / 9);
    }

    bool operator==(const Color&) const = default;
};

}  // namespace campora
