// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "findings/net_work.h"
#include "model/dose_source.h"
#include "model/work_layer.h"

namespace campora {

// What was prescribed beside what was applied. Doses are those of a hectare in the unit of the job,
// deviations per cent of what was prescribed. Hectares are net: ground that was worked again counts
// once, for the step that worked it first, and by that step it is judged. Product is what all steps
// were to get and got, so that it grows with what is worked again.

/// Which channel of a prescription is for which channel of a job; both count from 0.
struct ChannelPair {
    int ofJob = 0;
    int ofSource = 0;
};

/// The channels that both have; with `channel`, that one of the job, for which the only channel of
/// a prescription with one serves too.
[[nodiscard]] std::vector<ChannelPair> channelPairs(std::span<const WorkLayer* const> work,
                                                    const DoseSource& source,
                                                    std::optional<int> channel);

/// What a step got and what was prescribed at its middle.
struct ComparedDose {
    float applied = 0;
    /// None where nothing is said.
    std::optional<float> prescribed;

    /// Per cent; none where nothing was to be applied.
    [[nodiscard]] std::optional<double> deviation() const;
    /// Whether the doses differ by `limit` per cent of the prescribed one at most.
    [[nodiscard]] bool isWithin(double limit) const;
};

/// Per cent: the limits by which a whole job is judged.
inline constexpr std::array<double, 3> kJudgedLimits{5, 10, 20};

/// Per cent: how far a dose may be off where nobody says otherwise.
inline constexpr double kUsualLimit = 10;

/// Ground where one dose was prescribed.
struct DoseComparison {
    float dose = 0;
    double netHa = 0;
    double driven = 0;      ///< hectares as often as they were worked
    double prescribed = 0;  ///< product, as `applied`
    double applied = 0;
    double withinHa = 0;  ///< of `netHa`, within the limit that was asked for

    /// From 0 to 1; none without ground.
    [[nodiscard]] std::optional<double> within() const;
    /// What came out on a hectare that was driven over; none without one.
    [[nodiscard]] std::optional<double> meanDose() const;
};

struct ChannelComparison {
    ChannelPair channel;
    double netHa = 0;
    double prescribed = 0;
    double applied = 0;
    /// Of the ground with a dose above 0, with its sign; none without such ground.
    std::optional<double> meanDeviation;
    /// Of `netHa`, within `kJudgedLimits`.
    std::array<double, kJudgedLimits.size()> withinHa{};
    /// Ascending.
    std::vector<DoseComparison> doses;

    /// From 0 to 1; none without ground.
    [[nodiscard]] std::optional<double> within(std::size_t limit) const;
    /// Of `netHa`, within the limit that was asked for.
    [[nodiscard]] double withinAskedHa() const;
};

struct Comparison {
    std::vector<ChannelComparison> channels;
    /// Of the dosed ground, wherever it is.
    double netHa = 0;
    /// Dosed ground as often as it was dosed again.
    double againHa = 0;
    /// Of `netHa`, worked where the prescription says nothing for any of the channels: not judged.
    double outsideHa = 0;
    /// Driven without a dose, length times width: not judged either.
    double undosedHa = 0;
};

/// `limit`: per cent, for the ground of each dose.
[[nodiscard]] Comparison compareDoses(const NetWork& work, const DoseSource& source,
                                      std::span<const ChannelPair> channels, double limit);

/// Which part of the net ground a prescription gives a dose above 0, from 0 to 1; none without
/// worked ground. Of a long job a part of its steps, evenly spread, stands for all.
[[nodiscard]] std::optional<double> commonGround(const NetWork& work, const DoseSource& source);

/// From this part on a prescription is taken for that of a job.
inline constexpr double kLeastCommonGround = 1.0 / 3;

/// Hectares of a step, from one record to the next: length times width.
[[nodiscard]] double stepHectares(const WorkRecord& from, const WorkRecord& to);
/// The middle of its swath.
[[nodiscard]] LonLat stepMiddle(const WorkRecord& from, const WorkRecord& to);

}  // namespace campora
