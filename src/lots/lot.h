// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/lon_lat.h"
#include "base/occurrences.h"

namespace campora {

/// A lot as a ".lot" file holds it.
struct Lot {
    /// The ring in order, in degrees; the first vertex is not repeated.
    std::vector<LonLat> vertices;
    /// Lines, each ended by CR LF.
    std::string description;
    /// Lines of two numbers that are no position, which stand in the description; by their numbers.
    Occurrences noPositions = {};

    bool operator==(const Lot&) const = default;
};

/// Lines of a description that a file keeps.
inline constexpr std::size_t kLotDescriptionLines = 10;

/// The lines of a lot file: those whose first two pieces between commas are the numbers of a place
/// on the globe are vertices (latitude first, both with their signs turned round), all others the
/// description. A file without vertices gives a lot without.
[[nodiscard]] Lot decodeLot(std::string_view bytes);

/// The bytes of a lot file, in Windows-1252: the first ten lines of the description, with a "_"
/// where one would be read back as a number or a vertex, then a line a vertex. Coordinates have ten
/// decimals, a hundredth of a millimetre.
[[nodiscard]] std::string encodeLot(std::span<const LonLat> vertices, std::string_view description);

/// The lines of a text without their ends; CR LF, LF and CR end one. What stands after the last
/// end is no line when it is empty.
[[nodiscard]] std::vector<std::string> descriptionLines(std::string_view text);

}  // namespace campora
