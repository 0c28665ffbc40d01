// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace campora {

/// Appends a number of 1 to 8 bytes, whole or floating, least significant byte first.
template <typename Number>
requires std::is_arithmetic_v<Number>
void appendLittle(std::string& bytes, Number value) {
    using Bits = std::conditional_t<
        sizeof(Number) == 8, std::uint64_t,
        std::conditional_t<sizeof(Number) == 4, std::uint32_t,
                           std::conditional_t<sizeof(Number) == 2, std::uint16_t, std::uint8_t>>>;
    const auto bits = std::bit_cast<Bits>(value);
    for (std::size_t i = 0; i < sizeof(Bits); ++i) {
        bytes.push_back(static_cast<char>(static_cast<std::uint8_t>(bits >> (8U * i))));
    }
}

/// Appends a 32-bit number, most significant byte first.
inline void appendBig(std::string& bytes, std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes.push_back(static_cast<char>(static_cast<std::uint8_t>(bits >> shift)));
    }
}

}  // namespace campora
