// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/failure.h"
#include "model/bounding_box.h"
#include "platform/desk.h"

namespace campora {

/// How many cells a grid over a map has.
struct GridSize {
    std::int64_t columns = 0;
    std::int64_t rows = 0;

    bool operator==(const GridSize&) const = default;
};

/// With a margin of two cells on every side of the box. `metres`: side of a cell, above 0. Sizes
/// beyond all reason are the largest that 32 bits hold.
[[nodiscard]] GridSize gridSize(const BoundingBox& bound, double metres);

/// What a format says about the size of its grids.
struct GridFormat {
    /// Consoles take this many columns or rows.
    std::int64_t most = 0;
    /// The question about a larger grid; %1 is the least advisable size of a cell.
    TextId question{};
    /// Whole metres, of 16 bits.
    bool wholeMetres = false;
};
inline constexpr GridFormat kPreFormat{480, TextId::PreTooLarge, true};
inline constexpr GridFormat kVrtFormat{250, TextId::VrtTooLarge, false};

/// What stands against a side of a cell in metres; none when it serves.
[[nodiscard]] std::optional<Failure> cellSizeFault(double metres);

/// The side of a cell, in metres, after the user has been asked about a grid that is too large, as
/// often as the answers make it so; none when the user cancels, or gives an answer that is no size,
/// which is said. `path`: the file that is to hold the grid, as the questions name it.
[[nodiscard]] std::optional<double> settleCellSize(const BoundingBox& bound, double metres,
                                                   const GridFormat& format, std::string_view path,
                                                   const Desk& desk);

}  // namespace campora
