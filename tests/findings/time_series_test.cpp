// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/time_series.h"

#include <memory>
#include <random>

#include <gtest/gtest.h>

#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

struct Made {
    std::optional<Date> date;
    TimeOfDay time;
    std::int32_t dose = 100;
    std::int32_t specified = 100;
};

/// Passes north of each other, a record every 10 metres, swaths of 20 metres: 0.02 ha a step.
struct Job {
    explicit Job(const std::vector<std::vector<Made>>& made) {
        for (const std::vector<Made>& records : made) {
            auto track = std::make_unique<GphTrack>();
            for (std::size_t i = 0; i < records.size(); ++i) {
                TrackDataRPT::Fields fields = reportFields(records[i].dose);
                fields.spec[0] = records[i].specified;
                fields.date = records[i].date;
                fields.time = records[i].time;
                fields.speed = static_cast<float>(records[i].dose) / 10;
                fields.alarms = records[i].dose == 0 ? 4U : 0U;
                const LonLat at = atMetres(10.0 * static_cast<double>(i),
                                           30.0 * static_cast<double>(tracks.size()));
                track->addPoint(at.x, at.y, TrackDataRPT(fields));
            }
            passes.push_back(track.get());
            tracks.push_back(std::move(track));
        }
    }
    std::vector<std::unique_ptr<GphTrack>> tracks;
    std::vector<const WorkLayer*> passes;
};

TEST(WorkClock, GoesOnOverMidnightButNotBackwards) {
    const Date day{2016, 11, 29};
    const Date next{2016, 11, 30};
    struct Row {
        const char* name;
        std::vector<Made> records;
        RecordClock kind;
        bool runsBackwards;
        std::optional<std::int64_t> elapsed;
        std::int64_t onAxis = 0;  // numbers of records where there is no clock
    };
    const Row rows[] = {
        {"none", {}, RecordClock::None, false, std::nullopt},
        {"one", {{day, {8, 0, 0}}}, RecordClock::DateAndTime, false, 0},
        {"a day apart",
         {{day, {8, 0, 0}}, {next, {8, 0, 1}}},
         RecordClock::DateAndTime,
         false,
         86401,
         120},  // a hole of more than half an hour is folded
        {"two midnights by time alone",
         {{{}, {23, 59, 50}}, {{}, {0, 0, 10}}, {{}, {22, 0, 0}}, {{}, {1, 0, 0}}},
         RecordClock::TimeOfDay,
         false,
         10 + 25 * 3600,
         20 + 120 + 120},
        {"a time that falls",
         {{{}, {14, 0, 0}}, {{}, {13, 0, 0}}},
         RecordClock::TimeOfDay,
         true,
         std::nullopt,
         1},
        {"a date that falls",
         {{next, {0, 0, 5}}, {day, {23, 0, 0}}},
         RecordClock::DateAndTime,
         true,
         std::nullopt,
         1},
        {"some with a date",
         {{day, {8, 0, 0}}, {{}, {9, 0, 0}}},
         RecordClock::None,
         false,
         std::nullopt,
         1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Job job({row.records});
        WorkClock clock;
        std::int32_t n = 0;
        for (; n < job.passes[0]->recordCount(); ++n) {
            clock.add(job.passes[0]->recordN(n));
        }
        EXPECT_EQ(clock.kind(), row.kind);
        EXPECT_EQ(clock.runsBackwards(), row.runsBackwards);
        const TimeSeries series(job.passes);
        EXPECT_EQ(series.isOverTime(), row.elapsed.has_value());
        if (n > 0) {
            const auto last = static_cast<std::size_t>(n - 1);
            EXPECT_EQ(clock.elapsedAt(job.passes[0]->recordN(n - 1), last), row.elapsed);
            EXPECT_EQ(series.positionOf(last) - series.positionOf(0), row.onAxis);
            EXPECT_EQ(series.totals(0, last).seconds, row.elapsed);
        }
    }
}

TEST(TimeSeries, AddsUpWhatWasDoneBetweenTwoRecords) {
    // Over a hundred steps in the first pass, so that sums reach over leaves.
    std::vector<Made> first;
    for (int i = 0; i <= 100; ++i) {
        first.push_back({{}, {10, i / 60, i % 60}, i < 50 ? 100 : 200});
    }
    const Job job({first, {{{}, {10, 5, 0}, 0}, {{}, {10, 5, 1}, 300}, {{}, {10, 5, 9}, 0}}});
    const TimeSeries series(job.passes);
    struct Row {
        std::size_t first;
        std::size_t last;
        double hectares;
        double product;
        std::int64_t seconds;
    };
    const Row rows[] = {
        {0, 50, 1, 100, 50},
        {50, 100, 1, 200, 50},
        {45, 52, 0.14, 18, 7},
        {7, 7, 0, 0, 0},
        {100, 102, 0, 0, 201},  // from one pass to the next, and a step
                                // without dose
        {0, 103, 2.02, 306, 309},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.first);
        const TimeSeries::Totals totals = series.totals(row.first, row.last);
        EXPECT_NEAR(totals.hectares, row.hectares, 1e-6);
        EXPECT_NEAR(totals.product.value_or(-1), row.product, 1e-4);
        EXPECT_EQ(totals.seconds, row.seconds);
        ASSERT_EQ(totals.meanDose.has_value(), row.hectares > 0);
        EXPECT_NEAR(totals.meanDose.value_or(0), row.hectares > 0 ? row.product / row.hectares : 0,
                    1e-3);
    }
    GphTrack log;  // of flows: without a speed there is no dose
    for (int i = 0; i < 4; ++i) {
        const LonLat at = atMetres(10.0 * i, 0);
        log.addPoint(at.x, at.y, loggerRecord(i == 2 ? 0 : 40.0F, i == 0 ? 0 : 200.0F));
    }
    const WorkLayer* const logged[] = {&log};
    const TimeSeries flows(logged);
    EXPECT_FALSE(flows.isOverTime());
    EXPECT_TRUE(flows.record(0).dose.empty());
    EXPECT_NEAR(flows.totals(0, 3).hectares, 0.04, 1e-6);
    EXPECT_EQ(flows.totals(0, 3).product, std::nullopt);
    EXPECT_EQ(flows.totals(0, 3).meanDose, std::nullopt);
    EXPECT_NEAR(flows.totals(1, 3).product.value_or(-1), 0.02 * 6, 1e-5) << "40 l/min at 200 km/h";
    EXPECT_EQ(series.placeOf(100).pass, 0U);
    EXPECT_EQ(series.placeOf(102).pass, 1U);
    EXPECT_EQ(series.placeOf(102).record, 1U);
}

/// One record after the other, as slow as it is plain.
std::vector<SeriesColumn> plainColumns(const TimeSeries& series, double from, double to,
                                       std::size_t count) {
    std::vector<SeriesColumn> columns(count);
    const double width = (to - from) / static_cast<double>(count);
    for (std::size_t c = 0; c < count; ++c) {
        const double begin = from + width * static_cast<double>(c);
        std::size_t before = SeriesColumn::kNoRecord;
        for (std::size_t n = 0; n < series.size(); ++n) {
            const double at = series.positionOf(n);
            before = at < begin ? n : before;
            if (at >= begin && at < begin + width) {
                columns[c].add(series.record(n));
            }
        }
        if (columns[c].lastRecord == SeriesColumn::kNoRecord && before + 1 < series.size() &&
            series.placeOf(before).pass == series.placeOf(before + 1).pass &&
            series.positionOf(before + 1) - series.positionOf(before) <= 60) {
            columns[c] = series.record(before);
        }
    }
    return columns;
}

TEST(TimeSeries, ColumnsAreThoseOfOneRecordAfterTheOther) {
    std::mt19937 random(20161129);
    std::vector<std::vector<Made>> passes;
    int second = 3600;
    for (const int count : {1, 300, 7, 0, 450}) {
        std::vector<Made>& pass = passes.emplace_back();
        for (int i = 0; i < count; ++i) {
            second += random() % 50 == 0 ? 61 : static_cast<int>(random() % 4);
            pass.push_back({{},
                            {second / 3600, second / 60 % 60, second % 60},
                            static_cast<std::int32_t>(random() % 4 * 50),
                            static_cast<std::int32_t>(random() % 3 * 60)});
        }
    }
    for (const bool overTime : {true, false}) {
        if (!overTime) {
            passes[1].front().time = {9, 0, 0};  // before which nothing may come
        }
        const Job job(passes);
        const TimeSeries series(job.passes);
        ASSERT_EQ(series.isOverTime(), overTime);
        const double begin = series.positionOf(0);
        const double whole = series.positionOf(series.size() - 1) - begin + 1;
        for (int i = 0; i < 60; ++i) {
            // Windows of whole 64ths, whose columns begin at exact places.
            const double width = i == 0 ? whole : static_cast<double>(1 + random() % 1024);
            const double from =
                begin - 20 + static_cast<double>(random() % 1100) * (i == 0 ? 0 : 1);
            std::vector<SeriesColumn> columns(64);
            series.columns(from, from + width, columns);
            ASSERT_EQ(columns, plainColumns(series, from, from + width, 64))
                << from << ' ' << width;
        }
    }
}

}  // namespace
}  // namespace campora
