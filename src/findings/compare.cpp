// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/compare.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "model/measures.h"
#include "model/swath_geometry.h"

namespace campora {

namespace {

constexpr double kPerCent = 100;

std::optional<double> part(double some, double all) {
    return all > 0 ? std::optional(some / all) : std::nullopt;
}

float appliedIn(const WorkRecord& record, int channel) {
    return channel < record.channels ? record.applied[static_cast<std::size_t>(channel)] : 0;
}

/// Adds up the ground of one channel.
class ChannelSum {
public:
    ChannelSum(ChannelPair channel, double limit) : limit_(limit) { sum_.channel = channel; }

    [[nodiscard]] const ChannelPair& channel() const { return sum_.channel; }

    /// `dose`: with a prescribed one.
    void add(const ComparedDose& dose, double hectares) {
        const double prescribed = static_cast<double>(*dose.prescribed) * hectares;
        const double applied = static_cast<double>(dose.applied) * hectares;
        sum_.hectares += hectares;
        sum_.prescribed += prescribed;
        sum_.applied += applied;
        for (std::size_t i = 0; i < kJudgedLimits.size(); ++i) {
            sum_.withinHa[i] += dose.isWithin(kJudgedLimits[i]) ? hectares : 0;
        }
        if (const std::optional<double> deviation = dose.deviation()) {
            deviationHa_ += *deviation * hectares;
            dosedHa_ += hectares;
        }
        DoseComparison& ofDose = doses_[*dose.prescribed];
        ofDose.dose = *dose.prescribed;
        ofDose.hectares += hectares;
        ofDose.prescribed += prescribed;
        ofDose.applied += applied;
        ofDose.withinHa += dose.isWithin(limit_) ? hectares : 0;
    }

    [[nodiscard]] ChannelComparison sum() const {
        ChannelComparison whole = sum_;
        whole.meanDeviation = part(deviationHa_, dosedHa_);
        for (const auto& [dose, ground] : doses_) {
            whole.doses.push_back(ground);
        }
        return whole;
    }

private:
    double limit_;
    ChannelComparison sum_;
    double deviationHa_ = 0;
    double dosedHa_ = 0;
    std::map<float, DoseComparison> doses_;
};

}  // namespace

std::vector<ChannelPair> channelPairs(std::span<const WorkLayer* const> work,
                                      const DoseSource& source, std::optional<int> channel) {
    int ofJob = 0;
    for (const WorkLayer* layer : work) {
        if (layer->recordCount() > 0) {
            ofJob = std::max<int>(ofJob, layer->recordN(0).channels);
        }
    }
    const int ofSource = source.doseChannels();
    if (channel && ofSource == 1 && *channel < ofJob) {
        return {{*channel, 0}};
    }
    std::vector<ChannelPair> pairs;
    for (int i = 0; i < std::min(ofJob, ofSource); ++i) {
        if (channel.value_or(i) == i) {
            pairs.push_back({i, i});
        }
    }
    return pairs;
}

std::optional<double> ComparedDose::deviation() const {
    if (!prescribed || !(*prescribed > 0)) {
        return std::nullopt;
    }
    const double dose = *prescribed;
    return (static_cast<double>(applied) - dose) * kPerCent / dose;
}

bool ComparedDose::isWithin(double limit) const {
    if (!prescribed) {
        return false;
    }
    const double dose = *prescribed;
    return std::abs(static_cast<double>(applied) - dose) * kPerCent <= limit * dose;
}

std::optional<double> DoseComparison::within() const {
    return part(withinHa, hectares);
}

std::optional<double> ChannelComparison::within(std::size_t limit) const {
    return part(withinHa[limit], hectares);
}

double stepHectares(const WorkRecord& from, const WorkRecord& to) {
    return stepMetres(from.position, to.position) * std::abs(static_cast<double>(from.swath)) /
           kSquareMetresPerHectare;
}

LonLat stepMiddle(const WorkRecord& from, const WorkRecord& to) {
    return {(from.position.x + to.position.x) / 2, (from.position.y + to.position.y) / 2};
}

Comparison compareDoses(std::span<const WorkLayer* const> work, const DoseSource& source,
                        std::span<const ChannelPair> channels, double limit) {
    Comparison whole;
    std::vector<ChannelSum> sums;
    for (const ChannelPair& channel : channels) {
        sums.emplace_back(channel, limit);
    }
    const auto add = [&](const WorkRecord& from, const WorkRecord& to) {
        const double hectares = stepHectares(from, to);
        if (!from.worked) {
            whole.undosedHa += hectares;
            return;
        }
        whole.workedHa += hectares;
        const LonLat middle = stepMiddle(from, to);
        bool isInside = false;
        for (ChannelSum& sum : sums) {
            const ComparedDose dose{appliedIn(from, sum.channel().ofJob),
                                    source.doseAt(middle, sum.channel().ofSource)};
            if (dose.prescribed) {
                isInside = true;
                sum.add(dose, hectares);
            }
        }
        whole.outsideHa += isInside ? 0 : hectares;
    };
    for (const WorkLayer* layer : work) {
        forEachStep(*layer, add);
    }
    for (const ChannelSum& sum : sums) {
        whole.channels.push_back(sum.sum());
    }
    return whole;
}

std::optional<double> commonGround(std::span<const WorkLayer* const> work,
                                   const DoseSource& source) {
    constexpr std::int64_t kLooks = 20'000;
    std::int64_t records = 0;
    for (const WorkLayer* layer : work) {
        records += layer->recordCount();
    }
    const std::int64_t every = 1 + records / kLooks;
    std::int64_t step = 0;
    double worked = 0;
    double common = 0;
    const auto add = [&](const WorkRecord& from, const WorkRecord& to) {
        if (step++ % every != 0 || !from.worked) {
            return;
        }
        const double hectares = stepHectares(from, to);
        const LonLat middle = stepMiddle(from, to);
        bool isDosed = false;
        for (int channel = 0; channel < source.doseChannels() && !isDosed; ++channel) {
            isDosed = source.doseAt(middle, channel).value_or(0) > 0;
        }
        worked += hectares;
        common += isDosed ? hectares : 0;
    };
    for (const WorkLayer* layer : work) {
        forEachStep(*layer, add);
    }
    return part(common, worked);
}

}  // namespace campora
