// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/report_survey.h"

#include <algorithm>

namespace campora {

namespace {

/// Doses from here on are no doses: they count neither in sums nor in ranges.
constexpr int kLeastImpossibleDose =
    static_cast<int>(kValueBounds[static_cast<std::size_t>(BoundedValue::Dose)].greatest) + 1;

/// Adds up the runs of a work; a gap of more than an hour, or back in time, ends a run.
class RunningTime {
public:
    void add(std::int32_t day, const TimeOfDay& time) {
        constexpr std::int64_t kLongestGap = 3600;
        constexpr std::int64_t kSecondsOfDay = 86400;
        const std::int64_t now = day * kSecondsOfDay + time.secondOfDay();
        if (!last_ || now < *last_ || now - *last_ > kLongestGap) {
            finished_ = total();
            runStart_ = now;
        }
        last_ = now;
    }
    [[nodiscard]] std::int64_t total() const {
        return finished_ + (last_ ? *last_ - runStart_ : 0);
    }

private:
    std::int64_t finished_ = 0;
    std::int64_t runStart_ = 0;
    std::optional<std::int64_t> last_;
};

/// Tells a running counter from alarm words.
class CounterCheck {
public:
    void add(std::uint32_t word) {
        if (last_) {
            score_ = word == *last_ + 1 ? score_ + 1 : std::max(score_ - 3, 0);
        }
        last_ = word;
    }
    [[nodiscard]] bool isCounter() const { return score_ > 30; }

private:
    int score_ = 0;
    std::optional<std::uint32_t> last_;
};

void addDoses(const TrackDataRPT::Fields& fields, ReportSurvey& survey, ValueRanges& ranges) {
    float total = 0;
    for (std::size_t channel = 0; channel < fields.channels; ++channel) {
        const std::int32_t dose = fields.real[channel];
        survey.doseSums[channel] += dose < kLeastImpossibleDose ? dose : 0;
        total += static_cast<float>(dose);
    }
    if (total < kLeastImpossibleDose) {
        extend(ranges.dose, total);
    }
}

}  // namespace

void checkValues(LonLat position, const TrackDataRPT::Fields& fields, std::size_t record,
                 BoundsCheck& bounds) {
    bounds.check(BoundedValue::Swath, fields.swath, record, position);
    bounds.check(BoundedValue::Speed, fields.speed, record, position);
    for (std::size_t channel = 0; channel < fields.channels; ++channel) {
        // One remark a record: a damaged record mostly has several such doses.
        const std::int32_t real = fields.real[channel];
        const std::int32_t spec = fields.spec[channel];
        if (!isSound(BoundedValue::Dose, real) || !isSound(BoundedValue::Dose, spec)) {
            bounds.check(BoundedValue::Dose, isSound(BoundedValue::Dose, real) ? spec : real,
                         record, position);
            return;
        }
    }
}

ReportSurvey surveyReport(const RptView& report, ValueRanges& ranges) {
    ReportSurvey survey;
    survey.placements.assign(report.recordCount(), Placement::LeftOut);
    PassSplitter splitter(kReportLimits);
    RunningTime time;
    CounterCheck counter;
    for (std::size_t i = 0; i < report.recordCount(); ++i) {
        const auto [position, fields] = report.record(i);
        if (!isFix(position)) {
            survey.withoutPosition.add(i + 1);
            survey.check.addDropped();
            continue;
        }
        survey.start = survey.start.value_or(i);
        addDoses(fields, survey, ranges);
        const std::int32_t day = fields.date ? dayNumber(*fields.date) : 0;
        if (fields.date) {
            extend(ranges.date, day);
        }
        time.add(day, fields.time);
        counter.add(fields.alarms);
        survey.placements[i] = splitter.place(position, fields.swath);
        if (survey.placements[i] == Placement::LeftOut) {
            survey.farRecords.add(i + 1);
            survey.check.addDropped();
            continue;
        }
        survey.check.addKept(position);
        survey.speedSum += isStep(survey.placements[i]) ? fields.speed : 0;
        checkValues(position, fields, i + 1, survey.bounds);
    }
    survey.squareMetres = splitter.squareMetres();
    survey.steps = splitter.steps();
    survey.workingSeconds = time.total();
    survey.alarmsAreCounter = counter.isCounter();
    return survey;
}

}  // namespace campora
