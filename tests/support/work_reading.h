// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/scripted_platform.h"
#include "work/gph_track.h"
#include "work/work_reader.h"

namespace campora {

/// Everything that a reader of work files needs, for one test.
struct WorkReading {
    ScriptedDialogs dialogs;
    FixedLocale locale;
    Texts texts;
    Registrations registrations;

    [[nodiscard]] WorkDesk context() { return {{dialogs, texts, locale}, registrations}; }
    [[nodiscard]] std::optional<LoadedWork> report(std::string_view bytes) {
        return readRptFile("C:\\Datos\\Lote 12.rpt", FileBytes(std::string(bytes)), context());
    }
    [[nodiscard]] std::optional<LoadedWork> table(std::string_view text) {
        return readRptTextTable("C:\\Datos\\Parte 3.txt", FileBytes(std::string(text)), context());
    }
    [[nodiscard]] std::optional<LoadedWork> track(std::string_view text) {
        return readTrackFile("C:\\Datos\\Track12.nbr", FileBytes(std::string(text)), context());
    }
};

/// Track n of the group.
inline const GphTrack& trackOf(const LoadedWork& work, std::size_t n) {
    return dynamic_cast<const GphTrack&>(*work.group->File_gphList().at(n));
}

/// Record i of a report's track.
inline const TrackDataRPT& reportRecordOf(const LoadedWork& work, std::size_t n, std::int32_t i) {
    return dynamic_cast<const TrackDataRPT&>(trackOf(work, n).pointInfo(i));
}

/// Number of points of each track.
inline std::vector<std::size_t> pointCounts(const LoadedWork& work) {
    std::vector<std::size_t> counts;
    for (std::size_t n = 0; n < work.group->File_gphList().size(); ++n) {
        counts.push_back(trackOf(work, n).points().size());
    }
    return counts;
}

/// The summary, a line "property|value|unit" an entry.
inline std::vector<std::string> summaryLines(const LoadedWork& work) {
    std::vector<std::string> lines;
    for (const auto& [property, value, unit] : work.group->File_resumen().entries()) {
        lines.push_back(property + "|" + value + "|" + unit);
    }
    return lines;
}

/// The value of the entry of that name, "(none)" without one.
inline std::string summaryValue(const LoadedWork& work, std::string_view property) {
    for (const SummaryEntry& entry : work.group->File_resumen().entries()) {
        if (entry.property == property) {
            return entry.value;
        }
    }
    return "(none)";
}

}  // namespace campora
