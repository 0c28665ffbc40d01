// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/pre_grid.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "base/byte_writer.h"
#include "base/lon_lat.h"
#include "base/numbers.h"
#include "model/grid_geometry.h"
#include "presc/dose_grid.h"

namespace campora {

namespace {

// Little-endian; every number follows its label.
struct Label {
    std::size_t offset;
    std::string_view text;

    [[nodiscard]] constexpr std::size_t end() const { return offset + text.size(); }
};
constexpr Label kLatitude{0, "[LATITUD] = "};         // f32
constexpr Label kLongitude{16, "[LONGITUD] = "};      // f32
constexpr Label kColumns{33, "[ANCHO] = "};           // i16
constexpr Label kRows{45, "[ALTO] = "};               // i16
constexpr Label kCellSize{56, "[CUADRADO] = "};       // i16, metres
constexpr Label kMinuteOfLatitude{71, "[LAT] = "};    // i16, metres
constexpr Label kMinuteOfLongitude{81, "[LONG] = "};  // i16, metres
constexpr std::size_t kChannels = 95;                 // u8; 0 means 1
constexpr std::size_t kCells = 96;                    // i16 a channel of every cell

/// The others may be damaged: readers in the field do not look at them.
constexpr Label kChecked[] = {kLatitude, kLongitude, kColumns, kRows};

constexpr double kMinutes = 60;
constexpr double kFieldUnits = 1000;
constexpr double kDegreeUnits = 100;
constexpr double kDecimals = 1e5;

std::int16_t i16(ByteReader& reader) {
    return static_cast<std::int16_t>(reader.u16le());
}

std::int16_t i16At(ByteReader& reader, const Label& label) {
    reader.seek(label.end());
    return i16(reader);
}

float f32At(ByteReader& reader, const Label& label) {
    reader.seek(label.end());
    return reader.f32le();
}

PreHeader readHeader(ByteReader& reader) {
    PreHeader header;
    header.latitude = f32At(reader, kLatitude);
    header.longitude = f32At(reader, kLongitude);
    header.columns = i16At(reader, kColumns);
    header.rows = i16At(reader, kRows);
    header.cellSize = i16At(reader, kCellSize);
    header.metresPerMinuteOfLatitude = i16At(reader, kMinuteOfLatitude);
    header.metresPerMinuteOfLongitude = i16At(reader, kMinuteOfLongitude);
    reader.seek(kChannels);
    header.channels = std::max<int>(reader.u8(), 1);
    return header;
}

bool isPossible(const PreHeader& header, LonLat origin) {
    return header.columns > 0 && header.rows > 0 && header.cellSize > 0 &&
           std::abs(origin.y) < kPole && wholeMetresPerDegree(origin.y) > 0 &&
           std::abs(origin.x) <= kDateLine;
}

void put(std::string& bytes, const Label& label) {
    bytes.resize(label.offset, '\0');
    bytes.append(label.text);
}

void put(std::string& bytes, const Label& label, std::int16_t value) {
    put(bytes, label);
    appendLittle(bytes, value);
}

void put(std::string& bytes, const Label& label, float value) {
    put(bytes, label);
    appendLittle(bytes, value);
}

}  // namespace

float encodePreCoordinate(double degrees) {
    const double negated = -degrees;
    const double whole = std::floor(negated);
    const double minutes = roundHalfEven((negated - whole) * kMinutes * kFieldUnits) / kFieldUnits;
    return static_cast<float>((whole * kDegreeUnits + minutes) * kFieldUnits);
}

float decodePreCoordinate(float stored) {
    const double units = static_cast<double>(static_cast<float>(stored / float{kFieldUnits}));
    const double degrees = std::floor(units / kDegreeUnits);
    const double minutes = units - degrees * kDegreeUnits;
    const double negated = degrees + minutes / kMinutes;
    return static_cast<float>(roundHalfEven(-negated * kDecimals) / kDecimals);
}

bool isPreFile(std::span<const std::byte> bytes) {
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return std::all_of(std::begin(kChecked), std::end(kChecked), [text](const Label& label) {
        return text.size() >= label.end() &&
               text.substr(label.offset, label.text.size()) == label.text;
    });
}

PreGrid decodePre(std::span<const std::byte> bytes) {
    ByteReader reader(bytes);
    PreGrid grid{readHeader(reader), {}};
    const PreHeader& header = grid.header;
    const LonLat origin{decodePreCoordinate(header.longitude),
                        decodePreCoordinate(header.latitude)};
    if (!isPossible(header, origin)) {
        throw FormatError(impossibleGrid(header.columns, header.rows, header.cellSize, origin));
    }
    grid.doses = readDoses(reader, header.columns, header.rows, header.channels);
    return grid;
}

std::string encodePre(const PreHeader& header, std::span<const std::int16_t> doses) {
    std::string bytes;
    bytes.reserve(kCells + doses.size_bytes());
    put(bytes, kLatitude, header.latitude);
    put(bytes, kLongitude, header.longitude);
    put(bytes, kColumns, header.columns);
    put(bytes, kRows, header.rows);
    put(bytes, kCellSize, header.cellSize);
    put(bytes, kMinuteOfLatitude, header.metresPerMinuteOfLatitude);
    put(bytes, kMinuteOfLongitude, header.metresPerMinuteOfLongitude);
    bytes.resize(kChannels, '\0');
    bytes.push_back(static_cast<char>(header.channels == 1 ? 0 : header.channels));
    appendDoses(bytes, doses);
    return bytes;
}

}  // namespace campora
