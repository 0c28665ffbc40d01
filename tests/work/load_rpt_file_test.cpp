// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <limits>
#include <numeric>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/work_files.h"
#include "support/work_reading.h"

namespace campora {
namespace {

using testing::ElementsAre;

RptBytes::Record at(double east, double north, std::int32_t realTenths = 1000) {
    RptBytes::Record record;
    record.position = fixAt(east, north);
    record.realTenths[0] = realTenths;
    return record;
}

using Records = std::vector<RptBytes::Record>;

LoadedWork loaded(const Records& records) {
    RptBytes report(1);
    for (const RptBytes::Record& record : records) {
        report.add(record);
    }
    return WorkReading().report(report.bytes()).value();
}

TEST(LoadRptFile, MakesATrackOfEachPass) {
    const LoadedWork work = loaded({at(0, 0), at(10, 0), at(10, 0),  // standing still
                                    at(20, 0), at(15, 8), at(5, 8),  // a turn
                                    at(5, 300)});                    // a break
    EXPECT_THAT(pointCounts(work), ElementsAre(3, 3, 1));
    EXPECT_EQ(trackOf(work, 1).points().front(), trackOf(work, 0).points().back());
    EXPECT_EQ(reportRecordOf(work, 0, 1).pointIndex(), 2) << "the last record of the place";
    EXPECT_EQ(reportRecordOf(work, 2, 0).pointIndex(), 6);
    EXPECT_EQ(work.group->File_name(), "Lote 12.rpt");
}

TEST(LoadRptFile, SummaryOfASprayerWithTwoProducts) {
    RptBytes report(2, 0x6203, 0xC0FFEE, 0x10041121);
    for (int i = 0; i < 5; ++i) {
        RptBytes::Record record = at(12.5 * i, 0);
        record.realTenths = {985, 71, 0, 0};
        record.speedTenths = 112;
        record.swathCm = 3705;
        record.time = {{2018, 1, 15}, {18, 3, 32 + 2 * i}};
        report.add(record);
    }
    WorkReading reading;
    reading.locale = FixedLocale(',');
    const LoadedWork work = reading.report(report.bytes()).value();
    // 4 steps of 12.5 m by 37.05 m; five doses over four steps.
    EXPECT_THAT(summaryLines(work),
                ElementsAre("Nombre Archivo:|Lote 12.rpt|", "Numero de Serie:|6203-00C0FFEE|",
                            "Ver. Firmware:|1.1.33|", "Ver. Hardware:|1.0.04|",
                            "Hectáreas fumig: |0,185|", "Dosis Prom. (C 1):|122|lt/hect",
                            "Dosis Prom. (C 2):|8,8|lt/hect", "Vel Promedio:|11,2|km/h",
                            "Hora inicio:|15/01/2018 - 18:03:32|", "Duración:|0|min"));
}

TEST(LoadRptFile, SomeRecordsCountForTheirDoseOnly) {
    const std::tuple<Records, std::size_t, const char*, ValueRange<float>> rows[] = {
        // a glitch; impossible doses: 5000 when rounded
        {{at(0, 0), at(10001, 0, 3000), at(10, 0, 2000)}, 2, "600", {100, 300}},
        {{at(0, 0, 49994), at(10, 0, 49996), at(20, 0, 10)}, 3, "2500", {1, 4999}},
    };
    for (const auto& [records, points, average, doses] : rows) {
        const LoadedWork work = loaded(records);
        EXPECT_THAT(pointCounts(work), ElementsAre(points));
        EXPECT_EQ(summaryValue(work, "Dosis Prom.: "), average);
        EXPECT_EQ(work.ranges.dose, doses);
    }
}

TEST(LoadRptFile, DurationLeavesBreaksOfMoreThanAnHourOut) {
    const Date today{2018, 3, 5};
    const std::tuple<const char*, std::vector<DateTime>, const char*> rows[] = {
        {"an hour's gap counts", {{today, {8, 0, 0}}, {today, {9, 0, 0}}}, "60"},
        {"two seconds more do not", {{today, {8, 0, 0}}, {today, {9, 0, 2}}}, "0"},
        {"the clock goes back",
         {{today, {9, 0, 0}}, {today, {9, 10, 0}}, {today, {8, 0, 0}}, {today, {8, 5, 0}}},
         "15"},
        {"30 seconds round to even", {{today, {8, 0, 0}}, {today, {8, 2, 30}}}, "2"},
        {"day 0 is the last of the month before",
         {{{2018, 2, 28}, {23, 50, 0}}, {{2018, 3, 0}, {23, 58, 0}}},
         "8"},
    };
    for (const auto& [name, times, minutes] : rows) {
        Records records;
        for (const DateTime& time : times) {
            records.push_back(at(10.0 * static_cast<double>(records.size()), 0));
            records.back().time = time;
        }
        EXPECT_EQ(summaryValue(loaded(records), "Duración:"), minutes) << name;
    }
}

TEST(LoadRptFile, ARunningCounterInTheAlarmFieldIsCleared) {
    const std::tuple<const char*, std::uint32_t, std::vector<std::uint32_t>, bool> rows[] = {
        {"30 in a row", 30, {}, false},
        {"31 in a row", 31, {}, true},
        {"a leap takes three away", 33, {1}, false},
        {"and no more", 34, {1}, true},
    };
    for (const auto& [name, steps, more, cleared] : rows) {
        std::vector<std::uint32_t> words(steps + 1);
        std::iota(words.begin(), words.end(), 7U);
        words.insert(words.end(), more.begin(), more.end());
        Records records;
        for (const std::uint32_t word : words) {
            records.push_back(at(5.0 * static_cast<double>(records.size()), 0));
            records.back().alarms = word;
        }
        EXPECT_EQ(reportRecordOf(loaded(records), 0, 0).alarmas(), cleared ? 0 : 7U) << name;
    }
}

TEST(LoadRptFile, AFileWithoutSwathAsksForIt) {
    // Swath 0: nothing is loaded.
    const std::pair<const char*, float> rows[] = {{"16", 16}, {"250", 200}, {"27.6", 28},
                                                  {"", 0},    {"ancho", 0}, {"-3", 0}};
    RptBytes report;
    report.addFourFields(fixAt(0, 0), 1000);
    report.addFourFields(fixAt(10, 0), 1000);
    for (const auto& [answer, swath] : rows) {
        SCOPED_TRACE(answer);
        WorkReading reading;
        reading.dialogs.inputAnswers = {answer};
        const auto work = reading.report(report.bytes());
        EXPECT_THAT(reading.dialogs.inputs, ElementsAre("192|Campora|16"));
        EXPECT_EQ(reading.dialogs.messages.empty(), swath > 0);
        ASSERT_EQ(work.has_value(), swath > 0);
        if (work) {
            EXPECT_EQ(reportRecordOf(*work, 0, 0).trocha(), swath);
        }
    }
}

TEST(LoadRptFile, FiveChannelsShareFourSlotsAndSixAreRefused) {
    RptBytes five(5);
    five.add(at(0, 0));
    WorkReading reading;
    const LoadedWork work = reading.report(five.bytes()).value();
    EXPECT_EQ(summaryValue(work, "Dosis Prom. (C 5):"), "0");
    EXPECT_EQ(reportRecordOf(work, 0, 0).velocidad(), 12) << "speed follows the fourth slot";
    EXPECT_FALSE(reading.report(RptBytes(6).bytes() + five.bytes()));
    EXPECT_THAT(reading.dialogs.messages,
                ElementsAre("Error|Campora|Esta versión de Campora no es compatible con archivos "
                            "de mas de 4 columnas"));
}

}  // namespace
}  // namespace campora
