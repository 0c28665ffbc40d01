// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/passes.h"

#include <algorithm>
#include <cmath>

#include "findings/dose_mean.h"
#include "findings/turns.h"
#include "findings/usual_work.h"
#include "model/measures.h"

namespace campora {

namespace {

/// Mean of the recorded speeds; without any, way by time.
class SpeedMean {
public:
    void add(float speed, double seconds) {
        if (speed > 0) {
            sum_ += static_cast<double>(speed) * seconds;
            seconds_ += seconds;
        }
    }
    [[nodiscard]] std::optional<double> mean(double metres, std::optional<double> seconds) const {
        constexpr double kKmhPerMetreSecond = 3.6;
        if (seconds_ > 0) {
            return sum_ / seconds_;
        }
        return seconds && *seconds > 0 ? std::optional(metres / *seconds * kKmhPerMetreSecond)
                                       : std::nullopt;
    }

private:
    double sum_ = 0;
    double seconds_ = 0;
};

/// `longest`: seconds; a step that takes longer is a stop and no speed.
Pass passOf(const WorkWay& way, const WayRun& run, std::optional<double> longest) {
    Pass pass;
    pass.firstRecord = run.first;
    pass.lastRecord = run.last;
    pass.start = way.time(run.first);
    pass.seconds = way.seconds(run.first, run.last);
    pass.metres = way.metres(run.first, run.last);
    pass.headingDegrees =
        headingDegrees(way.records()[run.first].position, way.records()[run.last].position);
    DoseMean dose;
    SpeedMean speed;
    for (std::size_t i = run.first; i < run.last; ++i) {
        const WayRecord& record = way.records()[i];
        const double seconds = way.assumedSeconds(i, i + 1);
        speed.add(seconds <= longest.value_or(seconds) ? record.speed : 0, seconds);
        if (!record.dosed) {
            continue;
        }
        pass.hectares += way.squareMetres(i) / kSquareMetresPerHectare;
        dose.add(static_cast<double>(record.dose), way.squareMetres(i));
        if (record.specified > 0 && !std::isnan(record.dose)) {
            pass.largestError = std::max(pass.largestError.value_or(0), deviationOf(record));
        }
    }
    pass.dose = dose.mean();
    pass.doseDeviation = dose.deviation();
    pass.speedKmh = speed.mean(pass.metres, pass.seconds);
    return pass;
}

}  // namespace

std::vector<Pass> findPasses(std::span<const WorkLayer* const> layers,
                             const FindingOptions& options) {
    const WorkWay way(layers, options);
    const std::optional<double> longest = longestStep(way);
    std::vector<Pass> passes;
    for (const WayRun& run : leaveOutTurns(way).runs) {
        if (way.metres(run.first, run.last) >= kShortestMetres ||
            way.assumedSeconds(run.first, run.last) >= kShortestSeconds) {
            passes.push_back(passOf(way, run, longest));
        }
    }
    return passes;
}

}  // namespace campora
