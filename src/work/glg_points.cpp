// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/glg_points.h"

#include <cmath>
#include <string>

#include "base/byte_writer.h"
#include "base/file_draft.h"
#include "base/numbers.h"
#include "model/geodesy.h"

namespace campora {

namespace {

constexpr double kUnitsPerRadian = 8388608;  // 2^23
constexpr std::uint32_t kSignBit = 0x80000000U;

}  // namespace

std::uint32_t toGLGCoordType(double degrees) {
    const std::int32_t magnitude = roundToInt32(kUnitsPerRadian * std::abs(degrees) * kPi / 180);
    return static_cast<std::uint32_t>(magnitude) | (degrees < 0 ? kSignBit : 0U);
}

std::optional<Failure> exporttoglg(std::string_view path,
                                   std::span<const std::span<const LonLat>> tracks) {
    FileDraft draft(path);
    std::string pair;
    for (const std::span<const LonLat>& track : tracks) {
        for (const LonLat& point : track) {
            pair.clear();
            appendLittle(pair, toGLGCoordType(point.y));
            appendLittle(pair, toGLGCoordType(point.x));
            draft.write(pair);
        }
    }
    return draft.finish();
}

}  // namespace campora
