// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/prescription_check.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "base/numbers.h"
#include "model/geodesy.h"
#include "model/measures.h"
#include "presc/dose_raster.h"
#include "presc/gph_vrt.h"
#include "presc/grid_size.h"

namespace campora {

namespace {

constexpr double kMostSteps = std::numeric_limits<std::int16_t>::max();
/// Part of a dose that rounding may change.
constexpr double kRoundingLimit = 0.01;
/// Metres: a PRE file keeps its corner to a hundred thousandth of a degree, from thousandths of a
/// minute of arc.
constexpr double kCornerLimit = 2.5;

DoseScale scaleOf(const GridLayer& grid) {
    return doseScaleOf(dynamic_cast<const GphVRT*>(&grid) != nullptr ? GridKind::Vrt
                                                                     : GridKind::Pre);
}

void add(CellSum& sum, double dose, double cellHa) {
    sum.hectares += dose != 0 ? cellHa : 0;
    sum.product += dose * cellHa;
}

/// Of one channel of the file.
ChannelCheck checkChannel(const GridLayer& file, int channel) {
    const double cellHa = file.cellMetres() * file.cellMetres() / kSquareMetresPerHectare;
    const DoseScale scale = scaleOf(file);
    ChannelCheck check;
    for (std::int32_t cell = 0; cell < file.cellCount(); ++cell) {
        const double dose = file.dose(cell, channel);
        add(check.all, dose, cellHa);
        check.negative += dose < 0 ? 1 : 0;
        check.full += scale.stepsOf(file.dose(cell, channel)) >= kMostSteps ? 1 : 0;
    }
    return check;
}

void checkZones(ChannelCheck& check, const ChannelZones& channel, const DoseScale& scale) {
    for (const std::int32_t index : channel.order) {
        const GphPolygonMulti& zone = channel.zones[static_cast<std::size_t>(index)];
        const auto area = static_cast<double>(zone.Area());
        check.smallestZone = std::min(check.smallestZone.value_or(area), area);
        const double asked = zone.dosis;
        const double written = scale.stepsOf(zone.dosis) / scale.steps;
        const bool isKnown = std::any_of(
            check.rounded.begin(), check.rounded.end(),
            [&](const ChannelCheck::Rounded& known) { return known.asked == zone.dosis; });
        if (std::abs(written - asked) > kRoundingLimit * std::abs(asked) && !isKnown) {
            check.rounded.push_back({zone.dosis, written});
        }
    }
}

/// Whether the grid that was read has the corner of the one that was meant.
bool liesAt(const GridLayer& file, const GridLayout& layout, GridKind kind) {
    const BoundingBox& bound = file.Gph_bound();
    const double y = kind == GridKind::Pre ? bound.maxY : bound.minY;
    const double east = (bound.minX - layout.origin.x) * metresPerDegreeEast(y);
    const double north = (y - layout.origin.y) * METERS_PER_DEGREE;
    return std::hypot(east, north) < kCornerLimit;
}

/// Which cells have another dose than was meant, and the sums of those in zones and of the others.
void compareCells(PrescriptionCheck& check, const GridLayer& file,
                  std::span<const ChannelZones> zones, const GridRule& rule,
                  const CellCentres& centres) {
    const DoseScale scale = doseScaleOf(rule.kind);
    const double cellHa = file.cellMetres() * file.cellMetres() / kSquareMetresPerHectare;
    std::vector<bool> differs(static_cast<std::size_t>(file.cellCount()));
    for (std::size_t channel = 0; channel < zones.size(); ++channel) {
        const auto owners =
            zonesUnder(zones[channel], centres, [](std::size_t /*zonesDone*/) { return true; });
        ChannelCheck& sums = check.channels[channel];
        sums.zones.emplace();
        sums.fallback.emplace();
        for (std::size_t cell = 0; cell < differs.size(); ++cell) {
            const std::int32_t owner = (*owners)[cell];
            const bool isZone = owner != kNoZone;
            const double meant =
                isZone ? scale.stepsOf(zones[channel].zones[static_cast<std::size_t>(owner)].dosis)
                       : static_cast<double>(rule.fallback.at(channel));
            const float dose =
                file.dose(static_cast<std::int32_t>(cell), static_cast<int>(channel));
            differs[cell] = differs[cell] || scale.stepsOf(dose) != meant;
            add(isZone ? *sums.zones : *sums.fallback, dose, cellHa);
        }
    }
    check.different = std::count(differs.begin(), differs.end(), true);
}

}  // namespace

PrescriptionCheck checkGrid(const GridLayer& file) {
    PrescriptionCheck check;
    check.cells = file.cellCount();
    check.cellMetres = file.cellMetres();
    check.mostDose = kMostSteps / scaleOf(file).steps;
    for (int channel = 0; channel < file.channelsCnt(); ++channel) {
        check.channels.push_back(checkChannel(file, channel));
    }
    return check;
}

PrescriptionCheck checkGrid(const GridLayer& file, std::span<const ChannelZones> zones,
                            const GridRule& rule) {
    PrescriptionCheck check = checkGrid(file);
    const BoundingBox bound = boundOf(zones);
    const GridLayout layout =
        gridLayout(rule.kind, bound, rule.metres, gridSize(bound, rule.metres));
    check.isSameGrid = file.channelsCnt() == static_cast<int>(zones.size()) &&
                       file.columns() == static_cast<std::int32_t>(layout.centres.x.size()) &&
                       file.rows() == static_cast<std::int32_t>(layout.centres.y.size()) &&
                       static_cast<float>(file.cellMetres()) == static_cast<float>(rule.metres) &&
                       liesAt(file, layout, rule.kind);
    if (*check.isSameGrid) {
        for (std::size_t channel = 0; channel < zones.size(); ++channel) {
            checkZones(check.channels[channel], zones[channel], doseScaleOf(rule.kind));
        }
        compareCells(check, file, zones, rule, layout.centres);
    }
    return check;
}

PrescriptionCheck checkGrid(const GridLayer& file, const GridLayer& open) {
    PrescriptionCheck check = checkGrid(file);
    check.isSameGrid = file.channelsCnt() == open.channelsCnt() &&
                       file.columns() == open.columns() && file.rows() == open.rows() &&
                       file.cellMetres() == open.cellMetres() &&
                       file.Gph_bound().equals(open.Gph_bound());
    if (!*check.isSameGrid) {
        return check;
    }
    std::int64_t different = 0;
    for (std::int32_t cell = 0; cell < file.cellCount(); ++cell) {
        bool differs = false;
        for (int channel = 0; channel < file.channelsCnt(); ++channel) {
            differs = differs || file.dose(cell, channel) != open.dose(cell, channel);
        }
        different += differs ? 1 : 0;
    }
    check.different = different;
    return check;
}

std::int64_t cellsBeyond(const GridLayer& file, int channel, const DoseLimits& limits) {
    std::int64_t beyond = 0;
    for (std::int32_t cell = 0; cell < file.cellCount(); ++cell) {
        const double dose = file.dose(cell, channel);
        const bool isBeyond =
            dose < limits.least.value_or(dose) || dose > limits.most.value_or(dose);
        beyond += dose != 0 && isBeyond ? 1 : 0;
    }
    return beyond;
}

}  // namespace campora
