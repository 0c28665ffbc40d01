// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/problems.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <utility>

#include "findings/dose_mean.h"
#include "findings/passes.h"
#include "findings/turns.h"
#include "findings/usual_work.h"
#include "model/measures.h"

namespace campora {

namespace {

/// What is wrong with a step: a bit an alarm, and above them a bit a kind.
using Faults = std::uint64_t;

constexpr int kAlarmBits = 32;
constexpr int kFaults = kAlarmBits + 6;

constexpr Faults faultOf(ProblemKind kind) {
    return Faults{1} << (kAlarmBits + static_cast<int>(kind));
}

/// Adds up what a stretch got and was to get.
class DoseSum {
public:
    template <typename Dosed>
    void add(const Dosed& record, double ground) {
        dose_.add(static_cast<double>(record.dose), ground);
        if (record.specified > 0 && std::isfinite(record.dose)) {
            specified_.add(static_cast<double>(record.specified), ground);
            lost_ += ground * deviationOf(record);
        }
    }
    /// By more than its rounding.
    [[nodiscard]] bool losesMoreThan(const DoseSum& other) const {
        constexpr double kRounding = 1e-6;
        return lost_ > other.lost_ * (1 + kRounding);
    }
    void putInto(Problem& problem) const {
        problem.dose = dose_.mean();
        problem.specified = specified_.mean();
        problem.lost = problem.specified ? std::optional(lost_) : std::nullopt;
    }

private:
    DoseMean dose_;
    DoseMean specified_;
    double lost_ = 0;
};

/// Looks for the stretches of every kind at once.
class ProblemFinder {
public:
    ProblemFinder(const WorkWay& way, const FindingOptions& options)
        : way_(way),
          limit_(static_cast<double>(options.errorLimit) / 100),
          usual_(usualWork(way)) {}

    [[nodiscard]] Problems find() {
        const WayRuns runs = leaveOutTurns(way_);
        found_.turns = runs.turns;
        for (const WayRun& run : runs.runs) {
            searchRun(run);
        }
        for (const std::size_t last : runs.straightOn) {
            searchJump(last);
        }
        std::stable_sort(
            found_.rows.begin(), found_.rows.end(),
            [](const Problem& a, const Problem& b) { return a.firstRecord < b.firstRecord; });
        return std::move(found_);
    }

private:
    /// The steps from the first to the last one that are wrong.
    struct Stretch {
        std::size_t first = 0;
        std::size_t last = 0;
    };

    void searchRun(const WayRun& run) {
        for (std::size_t step = run.first; step < run.last; ++step) {
            const Faults found = faultsOf(step);
            if ((found & faultOf(ProblemKind::Gap)) != 0) {
                closeAll(faultOf(ProblemKind::Gap));
            }
            for (Faults faults = found; faults != 0; faults &= faults - 1) {
                extend(std::countr_zero(faults), step);
            }
        }
        closeAll(0);
    }

    void closeAll(Faults but) {
        for (Faults faults = open_ & ~but; faults != 0; faults &= faults - 1) {
            close(std::countr_zero(faults));
        }
        open_ &= but;
    }

    [[nodiscard]] Faults faultsOf(std::size_t step) const {
        // Nobody knows whether what the record says held on until the next one.
        if (isGap(step)) {
            return faultOf(ProblemKind::Gap);
        }
        const WayRecord& record = way_.records()[step];
        Faults faults = record.alarms;
        if (record.specified > 0) {
            faults |= !record.dosed     ? faultOf(ProblemKind::NoDose)
                      : isOffDose(step) ? faultOf(ProblemKind::OffDose)
                                        : 0;
        }
        faults |= isOddSpeed(record) ? faultOf(ProblemKind::Speed) : 0;
        faults |= isOtherSwath(record.swath, usual_.swath) ? faultOf(ProblemKind::Swath) : 0;
        return faults;
    }

    [[nodiscard]] bool isOffDose(std::size_t step) const {
        const auto isOff = [this](const auto& dose) {
            return dose.specified > 0 && deviationOf(dose) > limit_;
        };
        const auto channels = way_.channels(step);
        return isOff(way_.records()[step]) || std::any_of(channels.begin(), channels.end(), isOff);
    }

    [[nodiscard]] bool isGap(std::size_t step) const {
        return way_.metres(step, step + 1) > usual_.farthestStep || lacksTime(step);
    }

    [[nodiscard]] bool lacksTime(std::size_t step) const {
        const std::optional<double> seconds = way_.seconds(step, step + 1);
        return seconds && usual_.longestStep && *seconds > *usual_.longestStep;
    }

    [[nodiscard]] bool isOddSpeed(const WayRecord& record) const {
        return record.dosed && record.speed > 0 && usual_.slowest &&
               (record.speed < *usual_.slowest || record.speed > *usual_.fastest);
    }

    void extend(int fault, std::size_t step) {
        constexpr double kJoinSeconds = 3;
        Stretch& stretch = stretches_[static_cast<std::size_t>(fault)];
        const Faults bit = Faults{1} << fault;
        if ((open_ & bit) != 0) {
            if (way_.assumedSeconds(stretch.last + 1, step) < kJoinSeconds) {
                stretch.last = step;
                return;
            }
            close(fault);
        }
        open_ |= bit;
        stretch = {step, step};
    }

    void close(int fault) {
        const Stretch& stretch = stretches_[static_cast<std::size_t>(fault)];
        const std::size_t end = stretch.last + 1;
        if (way_.assumedSeconds(stretch.first, end) < kShortestSeconds &&
            way_.metres(stretch.first, end) < kShortestMetres) {
            return;
        }
        const bool isAlarm = fault < kAlarmBits;
        Problem problem = measured(stretch.first, end);
        problem.kind = isAlarm ? ProblemKind::Alarm : static_cast<ProblemKind>(fault - kAlarmBits);
        problem.alarm = isAlarm ? fault : -1;
        problem.lastRecord = problem.kind == ProblemKind::Gap ? end : stretch.last;
        addGround(problem, stretch);
        found_.rows.push_back(problem);
    }

    /// Between two passes that lie on one line.
    void searchJump(std::size_t last) {
        if (lacksTime(last)) {
            Problem problem = measured(last, last + 1);
            problem.kind = ProblemKind::Gap;
            problem.lastRecord = last + 1;
            found_.rows.push_back(problem);
        }
    }

    [[nodiscard]] Problem measured(std::size_t first, std::size_t end) const {
        Problem problem;
        problem.firstRecord = first;
        problem.start = way_.time(first);
        problem.seconds = way_.seconds(first, end);
        problem.metres = way_.metres(first, end);
        problem.position = way_.middle(first, end);
        return problem;
    }

    void addGround(Problem& problem, const Stretch& stretch) const {
        double hectares = 0;
        DoseSum all;
        std::array<DoseSum, WorkRecord::kMostChannels> channels;
        for (std::size_t i = stretch.first; i <= stretch.last; ++i) {
            const double ground = way_.squareMetres(i) / kSquareMetresPerHectare;
            hectares += ground;
            all.add(way_.records()[i], ground);
            std::size_t channel = 0;
            for (const ChannelDose& dose : way_.channels(i)) {
                channels[channel++].add(dose, ground);
            }
        }
        problem.hectares = hectares;
        if (problem.kind == ProblemKind::Gap) {
            return;
        }
        const DoseSum* shown = &all;
        for (std::size_t i = 0; problem.kind == ProblemKind::OffDose && i < channels.size(); ++i) {
            if (channels[i].losesMoreThan(*shown)) {
                shown = &channels[i];
                problem.channel = static_cast<int>(i);
            }
        }
        shown->putInto(problem);
    }

    const WorkWay& way_;
    double limit_;
    UsualWork usual_;
    Problems found_;
    std::array<Stretch, kFaults> stretches_{};
    Faults open_ = 0;
};

}  // namespace

bool isStop(const Problem& problem) {
    constexpr double kFarthest = 25;  // metres
    return problem.kind == ProblemKind::Gap && problem.metres <= kFarthest;
}

Problems findProblems(std::span<const WorkLayer* const> layers, const FindingOptions& options) {
    const WorkWay way(layers, options);
    return ProblemFinder(way, options).find();
}

}  // namespace campora
