// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/swath_groups.h"

#include <cstdint>

#include "model/swath_geometry.h"

namespace campora {

namespace {

const TrackData& recordOf(const GphTrack& pass, std::size_t step) {
    return pass.pointInfo(static_cast<std::int32_t>(step));
}

}  // namespace

std::optional<SwathGroup> nextSwathGroup(const GphTrack& pass, std::size_t from,
                                         std::size_t mostSteps, bool onlySprayed) {
    const auto steps = static_cast<std::size_t>(pass.Gph_count());
    const auto isWanted = [&](std::size_t step) {
        return !onlySprayed || recordOf(pass, step).caudal() > 0;
    };
    std::size_t step = from;
    while (step < steps && !isWanted(step)) {
        ++step;
    }
    if (step >= steps) {
        return std::nullopt;
    }
    SwathGroup group;
    group.first = step;
    group.swathMetres = recordOf(pass, step).trocha();
    for (; step < steps && group.steps < mostSteps && isWanted(step); ++step) {
        const TrackData& record = recordOf(pass, step);
        if (group.steps > 0 && record.trocha() != group.swathMetres) {
            break;
        }
        group.sumSpeed += pass.speedN(static_cast<std::int32_t>(step));
        group.sumFlow += record.caudal();
        ++group.steps;
    }
    return group;
}

void collectSwathRing(const GphTrack& pass, const SwathGroup& group, std::vector<LonLat>& ring) {
    const std::size_t side = group.steps + 1;
    ring.resize(2 * side + 1);
    for (std::size_t i = 0; i < side; ++i) {
        const SwathCorners corners =
            swathCorners(pass.points(), group.first + i, group.swathMetres);
        ring[i] = corners.left;
        ring[2 * side - 1 - i] = corners.right;
    }
    ring.back() = ring.front();
}

}  // namespace campora
