// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/dose_grid.h"

#include <cstddef>

#include "base/byte_writer.h"
#include "base/numbers.h"

namespace campora {

Failure impossibleGrid(std::int64_t columns, std::int64_t rows, double cellM, LonLat origin) {
    return {TextId::GridImpossible,
            {numberText(columns), numberText(rows), numberText(cellM), numberText(origin.x),
             numberText(origin.y)}};
}

std::vector<std::int16_t> readDoses(ByteReader& reader, std::int32_t columns, std::int32_t rows,
                                    int channels) {
    const auto cells = static_cast<std::uint64_t>(columns) * static_cast<std::uint64_t>(rows);
    const auto perCell = static_cast<std::size_t>(channels);
    if (cells > reader.remaining() / (perCell * sizeof(std::int16_t))) {
        reader.skip(reader.remaining() + 1);  // throws: the file is cut
    }
    std::vector<std::int16_t> doses(static_cast<std::size_t>(cells) * perCell);
    for (std::int16_t& dose : doses) {
        dose = static_cast<std::int16_t>(reader.u16le());
    }
    return doses;
}

void appendDoses(std::string& bytes, std::span<const std::int16_t> doses) {
    for (const std::int16_t dose : doses) {
        appendLittle(bytes, dose);
    }
}

}  // namespace campora
