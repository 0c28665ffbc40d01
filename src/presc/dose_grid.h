// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/byte_reader.h"
#include "base/failure.h"
#include "base/lon_lat.h"

namespace campora {

/// What the files of grids have in common; all numbers are little-endian.

/// Why no grid can be as a file or its user says. `cellM`: metres; `origin`: degrees.
[[nodiscard]] Failure impossibleGrid(std::int64_t columns, std::int64_t rows, double cellM,
                                     LonLat origin);

/// The doses of all cells, from where the reader stands. `columns`, `rows` and `channels` are above
/// 0; nothing is allocated before the file is known to hold them. Throws `FormatError` when it is
/// cut.
[[nodiscard]] std::vector<std::int16_t> readDoses(ByteReader& reader, std::int32_t columns,
                                                  std::int32_t rows, int channels);

void appendDoses(std::string& bytes, std::span<const std::int16_t> doses);

}  // namespace campora
