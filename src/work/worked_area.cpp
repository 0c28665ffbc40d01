// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/worked_area.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include "model/swath_geometry.h"
#include "work/gph_track.h"

namespace campora {

namespace {

/// Doses from here on are faults of measurement.
constexpr double kDoseLimit = 5000;
/// Part of the area that is left out at either end.
constexpr double kEnds = 0.01;

void addSteps(const GphTrack& track, const MapStyle& style, std::vector<ValueArea>& areas) {
    const std::vector<LonLat>& points = track.points();
    const auto add = [&](const auto& records) {
        using Record = typename std::decay_t<decltype(records)>::value_type;
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            const double value = records[i].scaledValue(style);
            const bool isFault = std::is_same_v<Record, TrackDataRPT> && value >= kDoseLimit;
            const double area = stepMetres(points[i], points[i + 1]) *
                                std::abs(static_cast<double>(records[i].trocha()));
            if (records[i].caudal() > 0 && area > 0 && !isFault) {
                areas.push_back({value, area});
            }
        }
    };
    std::visit(add, track.records());
}

double total(std::span<const ValueArea> areas) {
    double sum = 0;
    for (const ValueArea& area : areas) {
        sum += area.squareMetres;
    }
    return sum;
}

}  // namespace

std::vector<ValueArea> workedArea(const MapStyle& style, std::span<File* const> files) {
    std::vector<ValueArea> areas;
    for (const File* file : files) {
        for (const Gph* layer : file->File_gphList()) {
            if (const auto* track = dynamic_cast<const GphTrack*>(layer)) {
                addSteps(*track, style, areas);
            }
        }
    }
    return areas;
}

std::optional<ValueRange<float>> middleOfArea(std::vector<ValueArea> areas) {
    std::sort(areas.begin(), areas.end(),
              [](const ValueArea& a, const ValueArea& b) { return a.value < b.value; });
    const double all = total(areas);
    const auto valueAt = [&](double part) {
        double sum = 0;
        for (const ValueArea& area : areas) {
            sum += area.squareMetres;
            if (sum >= part * all) {
                return static_cast<float>(area.value);
            }
        }
        return static_cast<float>(areas.back().value);
    };
    if (areas.empty()) {
        return std::nullopt;
    }
    const ValueRange<float> middle{valueAt(kEnds), valueAt(1 - kEnds)};
    return middle.least < middle.greatest ? std::optional(middle) : std::nullopt;
}

double largestShare(const ColorScale& scale, std::span<const ValueArea> areas) {
    std::vector<double> classes(static_cast<std::size_t>(scale.count()), 0.0);
    for (const ValueArea& area : areas) {
        classes[static_cast<std::size_t>(scale.getClassIndexByValue(area.value))] +=
            area.squareMetres;
    }
    const double all = total(areas);
    return all > 0 ? *std::max_element(classes.begin(), classes.end()) / all : 0;
}

}  // namespace campora
