// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/color_modes.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "work/gph_track.h"
#include "work/worked_area.h"

namespace campora {

namespace {

constexpr int kDoseClasses = 5;
constexpr int kMostDayClasses = 12;
/// A prescription of more doses than this has no class for each in the legend.
constexpr int kMostErrorClasses = 256;
/// Doses from here on are faults of measurement; the readers leave them out of the totals as well.
constexpr std::int32_t kDoseLimit = 5000;

constexpr std::string_view kLitresPerHectare = "lt/hect";
constexpr std::string_view kUnitsPerHectare = "unid/hect";
constexpr std::string_view kLitresPerMinute = "lts/min";

/// Calls `visit` with the records of every track, a track at a time; all of one kind.
template <typename Visit>
void forEachTrack(std::span<File* const> files, Visit visit) {
    for (const File* file : files) {
        for (const Gph* layer : file->File_gphList()) {
            if (const auto* track = dynamic_cast<const GphTrack*>(layer)) {
                visit(track->records());
            }
        }
    }
}

template <typename Visit>
void forEachReportRecord(std::span<File* const> files, Visit visit) {
    forEachTrack(files, [&visit](const auto& records) {
        if (const auto* reports = std::get_if<GphTrack::RptRecords>(&records)) {
            std::for_each(reports->begin(), reports->end(), visit);
        }
    });
}

/// Least and greatest real dose in one channel.
std::optional<ValueRange<float>> channelDoses(std::size_t channel, std::span<File* const> files) {
    std::optional<ValueRange<float>> range;
    forEachReportRecord(files, [&](const TrackDataRPT& record) {
        const auto doses = record.getCaudal();
        if (channel < doses.size() && doses[channel] < kDoseLimit) {
            extend(range, static_cast<float>(doses[channel]));
        }
    });
    return range;
}

/// Whether the doses are seeds or the like: those of seeders and of machines that do not say what
/// they are.
bool countsUnits(const std::variant<GphTrack::RptRecords, GphTrack::NbrRecords>& records) {
    const auto* reports = std::get_if<GphTrack::RptRecords>(&records);
    return reports != nullptr && !reports->empty() &&
           reports->front().workKind() != WorkKind::Sprayer;
}

std::string_view doseUnit(std::span<File* const> files) {
    int tracks = 0;
    int inUnits = 0;
    forEachTrack(files, [&](const auto& records) {
        ++tracks;
        inUnits += countsUnits(records) ? 1 : 0;
    });
    return tracks > 0 && inUnits == tracks ? kUnitsPerHectare : kLitresPerHectare;
}

/// A class for ground without a dose, and classes by how far a dose is from the target: 5, 10 and
/// 20 per cent. From blue over cream to brown, which people who are blind to some colours can tell
/// apart.
void setUpTarget(ColorScale& scale, double target) {
    constexpr std::array<double, 7> kUpper{0.8, 0.9, 0.95, 1.05, 1.1, 1.2, 2};
    constexpr std::array<Color, 8> kClassColors{
        Color::rgb(0x70, 0x70, 0x70), Color::rgb(0x1B, 0x4F, 0x9C), Color::rgb(0x5B, 0x9B, 0xD5),
        Color::rgb(0xB4, 0xD6, 0xEE), Color::rgb(0xFF, 0xF6, 0xCC), Color::rgb(0xFB, 0xC3, 0x6B),
        Color::rgb(0xE0, 0x82, 0x14), Color::rgb(0x7F, 0x3B, 0x08)};
    scale.clearClass(0, 0);
    double lower = 0;
    for (const double part : kUpper) {
        scale.addClassManual(lower, target * part);
        lower = target * part;
    }
    for (int i = 0; i < scale.count(); ++i) {
        scale.setClassColor(i, kClassColors[static_cast<std::size_t>(i)]);
    }
    scale.openEnds = true;
    scale.allowClassEdit = false;
}

void setUpDoses(ColorScale& scale, const MapStyle& style, const ValueRanges& ranges,
                std::span<File* const> files) {
    const auto doses = style.selectedChannel < 0
                           ? ranges.dose
                           : channelDoses(static_cast<std::size_t>(style.selectedChannel), files);
    const bool perMinute = style.by == GraduatedBy::Minute && ranges.flow.has_value();
    auto range = perMinute ? ranges.flow : united(doses, ranges.litres);
    const auto middle =
        style.spreadClasses && range ? middleOfArea(workedArea(style, files)) : std::nullopt;
    scale.openEnds = middle.has_value();
    range = middle ? middle : range;
    scale.isDate = false;
    scale.allowClassEdit = true;
    scale.unit = perMinute ? kLitresPerMinute : doseUnit(files);
    if (style.targetDose && style.mode == ColorMode::Dose && !perMinute) {
        setUpTarget(scale, *style.targetDose);
        return;
    }
    if (range) {
        // Doses that are all below 0 have their lower bound raised above the upper one.
        const float greatest = std::max(range->least, range->greatest);
        const int classes = range->least < greatest ? kDoseClasses : 1;
        scale.setClassNumberExt(classes, range->least, greatest);
    }
}

bool setUpDates(ColorScale& scale, std::span<File* const> files) {
    SetList days;
    std::optional<std::int32_t> last;
    forEachReportRecord(files, [&](const TrackDataRPT& record) {
        if (record.hasDate()) {
            const std::int32_t day = dayNumber(record.fecha());
            // Neighbours mostly share their day, and the set need not look for it again.
            if (day != last) {
                days.addDosis(day);
            }
            last = day;
        }
    });
    if (days.count() == 0) {
        return false;
    }
    scale.isDate = true;
    scale.openEnds = false;
    scale.allowClassEdit = false;
    scale.unit.clear();
    if (days.count() > kMostDayClasses) {
        scale.setClassNumberExt(kMostDayClasses, days.getSet().front(), days.getSet().back());
    } else {
        scale.loadFromSetList(days, 0);
    }
    return true;
}

/// The distinct specified doses in one channel, ascending.
std::vector<std::int32_t> specifiedDoses(std::size_t channel, std::span<File* const> files) {
    std::vector<std::int32_t> specified;
    forEachReportRecord(files, [&](const TrackDataRPT& record) {
        const auto doses = record.getDosis();
        // Neighbours mostly share their dose.
        if (channel < doses.size() && (specified.empty() || specified.back() != doses[channel])) {
            specified.push_back(doses[channel]);
        }
    });
    std::sort(specified.begin(), specified.end());
    specified.erase(std::unique(specified.begin(), specified.end()), specified.end());
    return specified;
}

void setUpErrors(ColorScale& scale, const MapStyle& style, const ValueRanges& ranges,
                 std::span<File* const> files) {
    const std::vector<std::int32_t> specified =
        specifiedDoses(static_cast<std::size_t>(style.selectedChannel), files);
    if (specified.empty()) {
        setUpDoses(scale, style, ranges, files);  // no record has that channel
        scale.allowClassEdit = false;
        return;
    }
    scale.isDate = false;
    scale.openEnds = false;
    scale.allowClassEdit = false;
    scale.unit = doseUnit(files);
    if (specified.size() > std::size_t{kMostErrorClasses}) {
        scale.setClassNumberExt(kMostErrorClasses, specified.front(), specified.back());
        return;
    }
    SetList doses;
    for (const std::int32_t dose : specified) {
        doses.addDosis(dose);
    }
    scale.loadFromSetList(doses, style.errorLimit / 100);
}

}  // namespace

std::optional<bool> countsUnits(const File& file) {
    for (const Gph* layer : file.File_gphList()) {
        if (const auto* track = dynamic_cast<const GphTrack*>(layer)) {
            return countsUnits(track->records());
        }
    }
    return std::nullopt;
}

bool setUpColorScale(ColorScale& scale, const MapStyle& style, const ValueRanges& ranges,
                     std::span<File* const> files) {
    if (style.mode == ColorMode::Date) {
        return setUpDates(scale, files);
    }
    if (style.mode == ColorMode::Error && style.selectedChannel >= 0) {
        setUpErrors(scale, style, ranges, files);
    } else if (style.mode != ColorMode::Error || !scale.allowClassEdit) {
        // The error map of the total keeps the classes that are there, unless they are days or the
        // specified doses of a channel.
        setUpDoses(scale, style, ranges, files);
    }
    return true;
}

}  // namespace campora
