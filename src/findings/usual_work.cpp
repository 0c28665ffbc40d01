// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/usual_work.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <unordered_map>
#include <utility>
#include <vector>

#include "findings/turns.h"

namespace campora {

namespace {

constexpr double kSteps = 5;
/// km/h: aircraft spray below 300, so that what is more was not driven while working.
constexpr float kFastestAtWork = 400;

/// Seconds by speed, in bins as fine as the records have them.
class SpeedTable {
public:
    void add(float speed, double seconds) {
        const auto bin = static_cast<std::size_t>(std::lround(speed / kBin));
        if (bin >= seconds_.size()) {
            seconds_.resize(bin + 1);
        }
        seconds_[bin] += seconds;
    }
    [[nodiscard]] bool empty() const { return total() <= 0; }
    /// The speed below which that share of the time lies.
    [[nodiscard]] float quantile(double share) const {
        double left = total() * share;
        std::size_t bin = 0;
        while (bin + 1 < seconds_.size() && left > seconds_[bin]) {
            left -= seconds_[bin];
            ++bin;
        }
        return static_cast<float>(bin) * kBin;
    }

private:
    static constexpr float kBin = 0.1F;  // km/h

    [[nodiscard]] double total() const {
        return std::accumulate(seconds_.begin(), seconds_.end(), 0.0);
    }

    std::vector<double> seconds_;
};

void setSpeeds(UsualWork& usual, const WorkWay& way) {
    constexpr float kFences = 1.5F;
    constexpr float kLeastSpread = 0.2F;
    SpeedTable table;
    for (std::size_t i = 0; i < way.steps(); ++i) {
        const WayRecord& record = way.records()[i];
        const double seconds = way.assumedSeconds(i, i + 1);
        // A stop is no speed of the work, however long.
        const double most = usual.longestStep.value_or(seconds);
        if (record.dosed && record.speed > 0 && record.speed <= kFastestAtWork &&
            !record.endsPass && seconds <= most) {
            table.add(record.speed, seconds);
        }
    }
    if (table.empty()) {
        return;
    }
    const float lower = table.quantile(0.25);
    const float upper = table.quantile(0.75);
    const float spread = std::max(upper - lower, kLeastSpread * table.quantile(0.5));
    usual.slowest = lower - kFences * spread;
    usual.fastest = upper + kFences * spread;
}

/// Centimetres.
std::int64_t widthKey(float swath) {
    return std::llround(static_cast<double>(swath) * 100);
}

void setSwath(UsualWork& usual, const WorkWay& way) {
    std::unordered_map<std::int64_t, double> metres;
    for (std::size_t i = 0; i < way.steps(); ++i) {
        const WayRecord& record = way.records()[i];
        if (record.dosed && record.swath > 0 && !record.endsPass) {
            metres[widthKey(record.swath)] += way.metres(i, i + 1);
        }
    }
    // Of two that are equally frequent the wider one: it is the one that can be narrowed.
    const auto most =
        std::max_element(metres.begin(), metres.end(), [](const auto& a, const auto& b) {
            return a.second != b.second ? a.second < b.second : a.first < b.first;
        });
    if (most != metres.end()) {
        usual.swath = static_cast<float>(most->first) / 100;
    }
}

void setGaps(UsualWork& usual, const WorkWay& way) {
    constexpr double kLeastMetres = 25;
    usual.longestStep = longestStep(way);
    std::vector<double> lengths;
    lengths.reserve(way.steps());
    for (std::size_t i = 0; i < way.steps(); ++i) {
        const double metres = way.metres(i, i + 1);
        if (metres > 0 && !way.records()[i].endsPass) {
            lengths.push_back(metres);
        }
    }
    usual.farthestStep = std::max(kSteps * medianOf(std::move(lengths)).value_or(0), kLeastMetres);
}

}  // namespace

std::optional<double> longestStep(const WorkWay& way) {
    const std::optional<double> interval = way.usualInterval();
    return interval ? std::optional(std::max(kSteps * *interval, kTurnSeconds)) : std::nullopt;
}

UsualWork usualWork(const WorkWay& way) {
    UsualWork usual;
    setGaps(usual, way);
    setSpeeds(usual, way);
    setSwath(usual, way);
    return usual;
}

bool isOtherSwath(float swath, float usual) {
    return usual > 0 && std::abs(widthKey(swath) - widthKey(usual)) > 1;
}

}  // namespace campora
