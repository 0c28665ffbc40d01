// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "model/geodesy.h"
#include "model/view_transform.h"
#include "work/gph_track.h"

/// The field that the benchmarks of drawing have in common.
namespace campora {

inline constexpr CanvasSize kCanvas{1200 * 15, 900 * 15};
inline constexpr LonLat kCorner{-61.5, -33.2};  // of the field
inline constexpr std::size_t kRowSteps = 1000;
inline constexpr double kStepM = 4;
inline constexpr float kSwathM = 20;

/// Up and down a field in one go: rows of `kRowSteps` steps, `kSwathM` apart, that weave a little.
inline GphTrack fieldTrack(std::size_t steps, bool oneDose) {
    GphTrack track;
    track.reserve(steps + 1);
    const double perMetreX = 1 / (METERS_PER_DEGREE * std::cos(toRadians(kCorner.y)));
    for (std::size_t i = 0; i <= steps; ++i) {
        const std::size_t row = i / kRowSteps;
        const std::size_t along = row % 2 == 0 ? i % kRowSteps : kRowSteps - 1 - i % kRowSteps;
        const double weave = 0.3 * std::sin(static_cast<double>(i) / 7);
        TrackDataRPT::Fields fields;
        fields.real[0] = oneDose ? 100 : 60 + static_cast<std::int32_t>(i * 7919 % 97);
        fields.spec[0] = 100;
        fields.swath = kSwathM;
        fields.kind = WorkKind::Sprayer;
        track.addPoint(kCorner.x + static_cast<double>(along) * kStepM * perMetreX,
                       kCorner.y + (static_cast<double>(row) * kSwathM + weave) / METERS_PER_DEGREE,
                       TrackDataRPT(fields));
    }
    return track;
}

/// The whole box of the track on the canvas.
inline ViewTransform wholeView(const BoundingBox& box) {
    const double scale = std::max(box.widthM / kCanvas.width, box.heightM / kCanvas.height);
    return {static_cast<float>(scale), static_cast<float>(scale), {box.minX, box.minY}, kCanvas};
}

/// At a metre and a half a pixel, with the lower edge of the field near the top of the canvas:
/// about a thousand steps of the first rows are in view.
inline ViewTransform cornerView() {
    constexpr float kCloseScale = 0.1F;
    constexpr double kFieldSeenM = 10;
    const double belowM = kCanvas.height * kCloseScale - kFieldSeenM;
    const LonLat below{kCorner.x, kCorner.y - belowM / METERS_PER_DEGREE};
    return {kCloseScale, kCloseScale, below, kCanvas};
}

}  // namespace campora
