// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/dose_grid.h"

#include <bit>
#include <cstddef>

#include "base/numbers.h"

namespace campora {

namespace {

template <typename Unsigned>
void append(std::string& bytes, Unsigned value) {
    for (unsigned shift = 0; shift < 8 * sizeof(Unsigned); shift += 8) {
        bytes.push_back(static_cast<char>(static_cast<std::uint8_t>(value >> shift)));
    }
}

}  // namespace

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

void appendI16(std::string& bytes, std::int16_t value) {
    append(bytes, static_cast<std::uint16_t>(value));
}

void appendI32(std::string& bytes, std::int32_t value) {
    append(bytes, static_cast<std::uint32_t>(value));
}

void appendF32(std::string& bytes, float value) {
    append(bytes, std::bit_cast<std::uint32_t>(value));
}

void appendDoses(std::string& bytes, std::span<const std::int16_t> doses) {
    for (const std::int16_t dose : doses) {
        appendI16(bytes, dose);
    }
}

}  // namespace campora
