// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <memory>
#include <vector>

#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {

/// A job driven by a test, from (0, 0) in metres: a swath of 20 m, 100 specified and applied,
/// 18 km/h, on 14 November 2025.
class MadeJob {
public:
    MadeJob() {
        now.real[0] = 100;
        now.spec[0] = 100;
        now.swath = 20;
        now.speed = 18;
        now.date = Date{2025, 11, 14};
        newPass();
    }

    /// What the records say from now on, and how much time lies between two of them.
    TrackDataRPT::Fields now;
    int second = 8 * 3600;
    int interval = 2;
    double east = 0;
    double north = 0;

    void newPass() { tracks_.push_back(std::make_unique<GphTrack>()); }
    /// A record here and now, and on to the place and time of the next.
    MadeJob& go(double stepEast, double stepNorth, int steps = 1) {
        for (int i = 0; i < steps; ++i) {
            const int time = (second % 86400 + 86400) % 86400;
            now.time = {time / 3600, time / 60 % 60, time % 60};
            const LonLat at = atMetres(east, north);
            tracks_.back()->addPoint(at.x, at.y, TrackDataRPT(now));
            east += stepEast;
            north += stepNorth;
            second += interval;
        }
        return *this;
    }
    /// Half round to the right, in ten steps of 5 m, one a second.
    void turnBack() {
        const int before = std::exchange(interval, 1);
        for (int i = 1; i <= 10; ++i) {
            const double angle = kPi * (i - 0.5) / 10;
            go(5 * std::sin(angle), 5 * std::cos(angle));
        }
        interval = before;
    }
    [[nodiscard]] std::vector<const WorkLayer*> layers() const {
        std::vector<const WorkLayer*> layers;
        for (const auto& track : tracks_) {
            layers.push_back(track.get());
        }
        return layers;
    }

private:
    std::vector<std::unique_ptr<GphTrack>> tracks_;
};

}  // namespace campora
