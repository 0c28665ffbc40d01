// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/vrt_grid.h"

#include <cmath>

#include "base/byte_writer.h"
#include "base/encoding.h"
#include "base/lon_lat.h"
#include "model/grid_geometry.h"
#include "presc/dose_grid.h"

namespace campora {

namespace {

// Bytes from the start of the file, little-endian.
constexpr std::uint32_t kMagic = 0x016F1A9B;  // u32 at 0; X0, Y0, resolution f32; columns, rows
                                              // i32; channels u8
constexpr std::size_t kX0 = 4;
constexpr std::size_t kNameSize = 16;
constexpr std::size_t kDescriptionSize = 64;
constexpr std::size_t kCells = 109;  // after 4 zero bytes

/// Up to the first zero byte.
std::string readFixedText(ByteReader& reader, std::size_t size) {
    const std::span<const std::byte> field = reader.take(size);
    const std::string_view text(reinterpret_cast<const char*>(field.data()), field.size());
    return fromWindows1252(text.substr(0, text.find('\0')));
}

void appendText(std::string& bytes, std::string_view text, std::size_t size) {
    std::string field = toWindows1252(text);
    field.resize(size, '\0');
    bytes.append(field);
}

bool isPossible(const VrtHeader& header) {
    return header.columns > 0 && header.rows > 0 && header.channels > 0 && header.resolution > 0 &&
           std::isfinite(header.resolution) && std::abs(header.y0) < kPole &&
           wholeMetresPerDegree(header.y0) > 0 && std::abs(header.x0) <= kDateLine;
}

}  // namespace

bool isVrtFile(std::span<const std::byte> bytes) {
    return bytes.size() >= sizeof(kMagic) && ByteReader(bytes).u32le() == kMagic;
}

VrtGrid decodeVrt(std::span<const std::byte> bytes) {
    ByteReader reader(bytes, kX0);
    VrtGrid grid;
    VrtHeader& header = grid.header;
    header.x0 = reader.f32le();
    header.y0 = reader.f32le();
    header.resolution = reader.f32le();
    header.columns = reader.i32le();
    header.rows = reader.i32le();
    header.channels = reader.u8();
    header.name = readFixedText(reader, kNameSize);
    header.description = readFixedText(reader, kDescriptionSize);
    reader.seek(kCells);
    if (!isPossible(header)) {
        throw FormatError(
            impossibleGrid(header.columns, header.rows, header.resolution, {header.x0, header.y0}));
    }
    grid.doses = readDoses(reader, header.columns, header.rows, header.channels);
    return grid;
}

std::string encodeVrt(const VrtHeader& header, std::span<const std::int16_t> doses) {
    std::string bytes;
    bytes.reserve(kCells + doses.size_bytes());
    appendLittle(bytes, static_cast<std::int32_t>(kMagic));
    appendLittle(bytes, header.x0);
    appendLittle(bytes, header.y0);
    appendLittle(bytes, header.resolution);
    appendLittle(bytes, header.columns);
    appendLittle(bytes, header.rows);
    bytes.push_back(static_cast<char>(header.channels));
    appendText(bytes, header.name, kNameSize);
    appendText(bytes, header.description, kDescriptionSize);
    bytes.resize(kCells, '\0');
    appendDoses(bytes, doses);
    return bytes;
}

}  // namespace campora
