// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

namespace campora {

/// Types of figures; the variants with Z and M values are 10 and 20 higher.
enum class ShapeType : std::int32_t {
    Null = 0,
    Point = 1,
    PolyLine = 3,
    Polygon = 5,
    MultiPoint = 8,
};

/// Where things stand in a shapefile ("ESRI Shapefile Technical Description", 1998), for those who
/// read and who write it. Numbers are little-endian where nothing else is said; lengths and offsets
/// count words of 16 bits.
namespace shapefile {

// Bytes from the start of the main file and of the index, which begin alike.
namespace header {
inline constexpr std::int32_t kCode = 9994;     // i32 big-endian at 0; zeros follow
inline constexpr std::size_t kLength = 24;      // i32 big-endian, of the file
inline constexpr std::int32_t kVersion = 1000;  // i32 behind the length
inline constexpr std::size_t kType = 32;        // i32
inline constexpr std::size_t kBox = 36;         // f64 each: least x and y, greatest x and y
inline constexpr std::size_t kSize = 100;       // with the box of Z and M values
}  // namespace header

inline constexpr std::size_t kRecordHeader = 8;  // number, length of content: i32 big-endian each
inline constexpr std::size_t kIndexEntry = 8;    // offset, length of content: i32 big-endian each

// Bytes from the start of a record's content, which begins with the type.
namespace content {
inline constexpr std::size_t kPoint = 4;        // f64 x, f64 y
inline constexpr std::size_t kPointCount = 36;  // i32, of a set of points
inline constexpr std::size_t kPoints = 40;      // of a set of points
inline constexpr std::size_t kPartCount = 36;   // i32, of lines and polygons; point count follows
inline constexpr std::size_t kPartStarts = 44;  // i32 each, then the points
inline constexpr std::size_t kLeast = 4;        // the type
}  // namespace content

inline constexpr std::size_t kPartStartBytes = 4;
inline constexpr std::size_t kVertexBytes = 16;  // f64 x, f64 y

}  // namespace shapefile

}  // namespace campora
