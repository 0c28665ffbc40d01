// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/dose_raster.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "base/numbers.h"
#include "presc/vrt_grid.h"

namespace campora {

namespace {

constexpr double kLeast = std::numeric_limits<std::int16_t>::min();
constexpr double kGreatest = std::numeric_limits<std::int16_t>::max();

/// The dose, an endless one as the largest number there is.
std::string shown(float dose) {
    constexpr float kMost = std::numeric_limits<float>::max();
    return numberText(std::clamp(dose, -kMost, kMost));
}

/// Tells the progress window of work that is counted in zones, a per cent at a time.
class ZoneProgress {
public:
    ZoneProgress(Progress& progress, std::size_t zones)
        : progress_(progress), zones_(std::max<std::size_t>(zones, 1)) {}

    /// False when the user has cancelled.
    [[nodiscard]] bool at(std::size_t zone) {
        const auto percent = static_cast<int>(100 * zone / zones_);
        if (percent == shown_) {
            return true;
        }
        shown_ = percent;
        return progress_.report(percent);
    }

private:
    Progress& progress_;
    std::size_t zones_;
    int shown_ = -1;
};

}  // namespace

double DoseScale::stepsOf(float dose) const {
    return roundHalfEven(static_cast<double>(dose) * steps);
}

bool DoseScale::holds(double wholeSteps) const {
    return wholeSteps >= kLeast && wholeSteps <= kGreatest;
}

DoseScale doseScaleOf(GridKind kind) {
    return {kind == GridKind::Pre ? 1 : VrtGrid::kDoseUnits};
}

std::optional<Failure> doseFault(std::span<const ChannelZones> channels, const DoseScale& scale) {
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        const auto zones = channels[channel].zones;
        const auto bad = std::find_if(zones.begin(), zones.end(), [&](const GphPolygonMulti& zone) {
            return !scale.holds(scale.stepsOf(zone.dosis));
        });
        if (bad != zones.end()) {
            return Failure{TextId::DoseBeyondGrid,
                           {numberText(channel + 1), numberText(bad - zones.begin() + 1),
                            shown(bad->dosis), numberText(kLeast / scale.steps),
                            numberText(kGreatest / scale.steps)}};
        }
    }
    return std::nullopt;
}

std::optional<GridDoses> dosesUnder(std::span<const ChannelZones> channels,
                                    const CellCentres& centres, const DoseScale& scale,
                                    std::span<const std::int16_t> fallback, Progress& progress) {
    std::size_t all = 0;
    for (const ChannelZones& channel : channels) {
        all += channel.order.size();
    }
    ZoneProgress zones(progress, all);
    std::size_t before = 0;
    GridDoses filled;
    std::vector<std::int16_t>& doses = filled.doses;
    doses.resize(centres.x.size() * centres.y.size() * channels.size());
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        const auto owners = zonesUnder(channels[channel], centres,
                                       [&](std::size_t done) { return zones.at(before + done); });
        if (!owners) {
            return std::nullopt;
        }
        before += channels[channel].order.size();
        std::vector<std::int16_t> ofZone;
        for (const GphPolygonMulti& zone : channels[channel].zones) {
            ofZone.push_back(static_cast<std::int16_t>(scale.stepsOf(zone.dosis)));
        }
        std::size_t place = channel;
        for (const std::int32_t owner : *owners) {
            doses[place] =
                owner == kNoZone ? fallback[channel] : ofZone[static_cast<std::size_t>(owner)];
            filled.meetZones = filled.meetZones || owner != kNoZone;
            place += channels.size();
        }
    }
    return zones.at(all) ? std::optional(std::move(filled)) : std::nullopt;
}

}  // namespace campora
