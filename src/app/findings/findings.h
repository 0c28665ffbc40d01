// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/findings/compare_commands.h"
#include "app/findings/coverage_commands.h"
#include "app/findings/finding_commands.h"
#include "app/findings/time_strip.h"

namespace campora {

/// What the open work really was: its ground, its prescription, its passes and problems, its time.
struct Findings {
    /// All of it outlives them.
    Findings(OpenMap& map, MapDisplay& display, MapTools& tools, SettingsStore& settings)
        : coverage(map, display),
          comparison(map, display, settings),
          tables(map, display, tools),
          timeStrip(map, display, tools) {}

    /// Where the stretch begins that is brushed in the strip, or shown for a row of the tables.
    [[nodiscard]] std::optional<WorkPlace> chosenStretch() const {
        const std::optional<WorkPlace> brushed = timeStrip.stretch();
        return brushed ? brushed : tables.shown();
    }
    /// Replays from there on.
    void playStretch() const {
        if (const std::optional<WorkPlace> first = chosenStretch(); first && timeStrip.onPlay) {
            timeStrip.onPlay(*first);
        }
    }

    CoverageCommands coverage;
    CompareCommands comparison;
    FindingCommands tables;
    TimeStrip timeStrip;
};

}  // namespace campora
