// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// The header of a VRT file.
struct VrtHeader {
    /// West and south edge, degrees.
    float x0 = 0;
    float y0 = 0;
    /// Side of a cell, metres.
    float resolution = 0;
    /// West to east, south to north.
    std::int32_t columns = 0;
    std::int32_t rows = 0;
    /// 1 to 255.
    int channels = 1;
    /// UTF-8; what does not fit is cut off: 16 and 64 characters.
    std::string name;
    std::string description;

    bool operator==(const VrtHeader&) const = default;
};

/// A VRT file: a grid of square cells from its south-west corner, row by row northward, with a dose
/// in hundredths a channel.
struct VrtGrid {
    static constexpr double kDoseUnits = 100;

    VrtHeader header;
    /// Row by row, in a row west to east, in a cell channel 1 first; hundredths.
    std::vector<std::int16_t> doses;
};

/// Whether the file begins with the number that tells a VRT file.
[[nodiscard]] bool isVrtFile(std::span<const std::byte> bytes);

/// `bytes` has passed `isVrtFile`; what follows the last cell is left aside. Throws `FormatError`
/// when the file is cut, or has a size or a place that no grid can have.
[[nodiscard]] VrtGrid decodeVrt(std::span<const std::byte> bytes);

/// `doses` has the cells and channels that `header` says.
[[nodiscard]] std::string encodeVrt(const VrtHeader& header, std::span<const std::int16_t> doses);

}  // namespace campora
