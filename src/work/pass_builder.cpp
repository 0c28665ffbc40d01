// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/pass_builder.h"

#include <memory>
#include <utility>

#include "work/gph_track.h"

namespace campora {

namespace {

constexpr bool startsPass(Placement placement) {
    return placement == Placement::Opens || placement == Placement::Turns;
}

/// Points of the pass that starts at the first of these placements.
std::size_t pointsOfPass(std::span<const Placement> placements) {
    std::size_t points = placements.front() == Placement::Turns ? 2 : 1;
    for (std::size_t i = 1; i < placements.size() && !startsPass(placements[i]); ++i) {
        points += placements[i] == Placement::Continues ? 1 : 0;
    }
    return points;
}

}  // namespace

void addPasses(FileGphGroup& group, std::span<const Placement> placements,
               const std::function<ReportRecord(std::size_t)>& recordAt) {
    std::unique_ptr<GphTrack> track;
    std::int32_t kept = 0;
    std::size_t lastKept = 0;
    const auto add = [&](std::size_t i, std::int32_t pointIndex) {
        ReportRecord record = recordAt(i);
        record.fields.pointIndex = pointIndex;
        track->addPoint(record.position.x, record.position.y, TrackDataRPT(record.fields));
    };
    for (std::size_t i = 0; i < placements.size(); ++i) {
        if (placements[i] == Placement::LeftOut) {
            continue;
        }
        if (startsPass(placements[i])) {
            if (track) {
                group.addGph(std::move(track));
            }
            track = std::make_unique<GphTrack>();
            track->reserve(pointsOfPass(placements.subspan(i)));
        }
        if (placements[i] == Placement::Turns) {
            add(lastKept, kept - 1);
        }
        add(i, kept);
        lastKept = i;
        ++kept;
    }
    if (track) {
        group.addGph(std::move(track));
    }
}

}  // namespace campora
