// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/glg_points.h"

#include <cmath>
#include <cstddef>
#include <vector>

#include "base/files.h"
#include "base/numbers.h"
#include "model/geodesy.h"

namespace campora {

namespace {

constexpr double kUnitsPerRadian = 8388608;  // 2^23
constexpr std::uint32_t kSignBit = 0x80000000U;

void appendU32le(std::vector<std::byte>& bytes, std::uint32_t value) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<std::byte>(value >> shift));
    }
}

}  // namespace

std::uint32_t toGLGCoordType(double degrees) {
    const std::int32_t magnitude = roundToInt32(kUnitsPerRadian * std::abs(degrees) * kPi / 180);
    return static_cast<std::uint32_t>(magnitude) | (degrees < 0 ? kSignBit : 0U);
}

std::optional<Failure> exporttoglg(std::string_view path, std::span<const LonLat> points) {
    std::vector<std::byte> bytes;
    bytes.reserve(points.size() * 2 * sizeof(std::uint32_t));
    for (const LonLat& point : points) {
        appendU32le(bytes, toGLGCoordType(point.y));
        appendU32le(bytes, toGLGCoordType(point.x));
    }
    return writeFile(path, bytes);
}

}  // namespace campora
