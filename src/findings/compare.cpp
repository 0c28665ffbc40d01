// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/compare.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

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

/// Hectares of a step.
struct Ground {
    double net = 0;
    double driven = 0;
};

/// Adds up the ground of one channel.
class ChannelSum {
public:
    ChannelSum(ChannelPair channel, double limit) : limit_(limit) { sum_.channel = channel; }

    [[nodiscard]] const ChannelPair& channel() const { return sum_.channel; }

    /// `dose`: with a prescribed one.
    void add(const ComparedDose& dose, const Ground& ground) {
        DoseComparison& ofDose = doses_[*dose.prescribed];
        ofDose.dose = *dose.prescribed;
        ofDose.netHa += ground.net;
        ofDose.driven += ground.driven;
        ofDose.prescribed += static_cast<double>(*dose.prescribed) * ground.driven;
        ofDose.applied += static_cast<double>(dose.applied) * ground.driven;
        ofDose.withinHa += dose.isWithin(limit_) ? ground.net : 0;
        for (std::size_t i = 0; i < kJudgedLimits.size(); ++i) {
            sum_.withinHa[i] += dose.isWithin(kJudgedLimits[i]) ? ground.net : 0;
        }
        if (const std::optional<double> deviation = dose.deviation()) {
            deviationHa_ += *deviation * ground.net;
            dosedHa_ += ground.net;
        }
    }

    [[nodiscard]] ChannelComparison sum() const {
        ChannelComparison whole = sum_;
        whole.meanDeviation = part(deviationHa_, dosedHa_);
        for (const auto& [dose, ofDose] : doses_) {
            whole.netHa += ofDose.netHa;
            whole.prescribed += ofDose.prescribed;
            whole.applied += ofDose.applied;
            whole.doses.push_back(ofDose);
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

/// Whether anything is prescribed at the middle of the step, for any of the channels.
bool addStep(std::vector<ChannelSum>& sums, const WorkRecord& record, LonLat middle,
             const DoseSource& source, const Ground& ground) {
    bool isInside = false;
    for (ChannelSum& sum : sums) {
        const ComparedDose dose{appliedIn(record, sum.channel().ofJob),
                                source.doseAt(middle, sum.channel().ofSource)};
        if (dose.prescribed) {
            isInside = true;
            sum.add(dose, ground);
        }
    }
    return isInside;
}

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
    return part(withinHa, netHa);
}

std::optional<double> DoseComparison::meanDose() const {
    return part(applied, driven);
}

std::optional<double> ChannelComparison::within(std::size_t limit) const {
    return part(withinHa[limit], netHa);
}

double ChannelComparison::withinAskedHa() const {
    return std::accumulate(
        doses.begin(), doses.end(), 0.0,
        [](double sum, const DoseComparison& ofDose) { return sum + ofDose.withinHa; });
}

double stepHectares(const WorkRecord& from, const WorkRecord& to) {
    return stepMetres(from.position, to.position) * std::abs(static_cast<double>(from.swath)) /
           kSquareMetresPerHectare;
}

LonLat stepMiddle(const WorkRecord& from, const WorkRecord& to) {
    return {(from.position.x + to.position.x) / 2, (from.position.y + to.position.y) / 2};
}

Comparison compareDoses(const NetWork& work, const DoseSource& source,
                        std::span<const ChannelPair> channels, double limit) {
    Comparison whole;
    double drivenHa = 0;
    std::vector<ChannelSum> sums;
    for (const ChannelPair& channel : channels) {
        sums.emplace_back(channel, limit);
    }
    forEachStep(work, [&](const WorkRecord& from, const WorkRecord& to, double netHa) {
        const Ground ground{netHa, stepHectares(from, to)};
        if (!std::isfinite(ground.driven)) {
            return;
        }
        if (!from.worked) {
            whole.undosedHa += ground.driven;
            return;
        }
        whole.netHa += ground.net;
        drivenHa += ground.driven;
        const bool isInside = addStep(sums, from, stepMiddle(from, to), source, ground);
        whole.outsideHa += isInside ? 0 : ground.net;
    });
    whole.againHa = std::max(drivenHa - whole.netHa, 0.0);
    for (const ChannelSum& sum : sums) {
        whole.channels.push_back(sum.sum());
    }
    return whole;
}

std::optional<double> commonGround(const NetWork& work, const DoseSource& source) {
    constexpr std::size_t kLooks = 20'000;
    const std::size_t every = 1 + work.hectares().size() / kLooks;
    std::size_t step = 0;
    double net = 0;
    double common = 0;
    forEachStep(work, [&](const WorkRecord& from, const WorkRecord& to, double netHa) {
        if (step++ % every != 0 || !from.worked) {
            return;
        }
        const LonLat middle = stepMiddle(from, to);
        bool isDosed = false;
        for (int channel = 0; channel < source.doseChannels() && !isDosed; ++channel) {
            isDosed = source.doseAt(middle, channel).value_or(0) > 0;
        }
        net += netHa;
        common += isDosed ? netHa : 0;
    });
    return part(common, net);
}

}  // namespace campora
