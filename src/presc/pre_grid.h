// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace campora {

/// The header of a PRE file, in the units of its fields.
struct PreHeader {
    /// Degrees and minutes of the negated coordinate as one number: 1000 x (degrees x 100 +
    /// minutes); see `encodePreCoordinate`.
    float latitude = 0;
    float longitude = 0;
    /// West to east, north to south.
    std::int16_t columns = 0;
    std::int16_t rows = 0;
    /// Metres.
    std::int16_t cellSize = 0;
    std::int16_t metresPerMinuteOfLatitude = 0;
    /// At the north edge.
    std::int16_t metresPerMinuteOfLongitude = 0;
    int channels = 1;

    bool operator==(const PreHeader&) const = default;
};

/// A PRE file: a grid of square cells from its north-west corner, row by row southward, with a dose
/// in whole units a channel.
struct PreGrid {
    PreHeader header;
    /// Row by row, in a row west to east, in a cell channel 1 first.
    std::vector<std::int16_t> doses;
};

/// The number that stands for a latitude or longitude in degrees; minutes are rounded to 3
/// decimals, halves to even.
[[nodiscard]] float encodePreCoordinate(double degrees);
/// Degrees with 5 decimals, in single precision as the format keeps them.
[[nodiscard]] float decodePreCoordinate(float stored);

/// Whether the four labels that tell a PRE file stand where they should.
[[nodiscard]] bool isPreFile(std::span<const std::byte> bytes);

/// `bytes` has passed `isPreFile`; what follows the last cell is left aside. Throws `FormatError`
/// when the file is cut, or has a size or a place that no grid can have.
[[nodiscard]] PreGrid decodePre(std::span<const std::byte> bytes);

/// `doses` has the cells and channels that `header` says.
[[nodiscard]] std::string encodePre(const PreHeader& header, std::span<const std::int16_t> doses);

}  // namespace campora
