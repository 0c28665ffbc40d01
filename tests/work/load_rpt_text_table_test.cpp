// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <numeric>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/work_reading.h"

namespace campora {
namespace {

using testing::Contains;
using testing::ElementsAre;

const std::string kTitle = "Reporte de trabajo\r\n";
const std::string kHeadings4 = kTitle + "Longitud\tLatitud\tDosis real\tVelocidad\r\n";
const std::string kHeadings8 =
    kTitle + "Longitud\tLatitud\tDosis\tEspec.\tVelocidad\tCodigo\tAncho (cm)\tHora\r\n";
const std::string kRecord8 = "-61.2\t-34.6\t138\t140\t15.6\t7\t3086\t10:20:00\r\n";

TEST(LoadRptTextTable, ReadsFourColumnsWithTheAskedSwath) {
    WorkReading reading;
    reading.dialogs.inputAnswers = {"250"};
    const LoadedWork work = reading.table(kHeadings4 + "-61.2\t-34.6\t137.5\t9.8\n").value();
    EXPECT_THAT(reading.dialogs.inputs, ElementsAre("192|Campora|16"));
    const TrackDataRPT& record = reportRecordOf(work, 0, 0);
    EXPECT_EQ(record.caudal(), 138) << "halves to even";
    EXPECT_EQ(record.velocidad(), 9.8F);
    EXPECT_EQ(record.trocha(), 200);
}

TEST(LoadRptTextTable, SummaryCountsTheFirstRecordAndEveryStep) {
    WorkReading reading;
    reading.locale = FixedLocale(',');
    // Steps of 11.132 m to the south: 0.0001 degrees.
    const LoadedWork work =
        reading
            .table(kHeadings8 + "-61.2\t-34.6000\t100\t0\t10\t0\t2000\t23:50:00\r\n"
                                "-61.2\t-34.6001\t110\t0\t11\t0\t2000\t23:59:00\r\n"
                                "\r\n"
                                "-61.2\t-34.6002\t150\t0\t12\t0\t2000\t0:10:00\r\n"
                                "-61.2\t-34.7000\t999\t0\t99\t0\t2000\t0:12:00\r\n")
            .value();
    EXPECT_THAT(pointCounts(work), ElementsAre(3, 1));
    EXPECT_THAT(summaryLines(work),
                ElementsAre("Nombre Archivo:|Parte 3.txt|", "Hectáreas fumig:|0,045|",
                            "Dosis Promedio:|180|lt/hect", "Vel Promedio:|16,5|km/h",
                            "Hora inicio:|23:50:00|", "Duración:|22|min"));
    EXPECT_EQ(work.ranges.dose, (ValueRange<float>{100, 999}));
    EXPECT_THAT(summaryLines(WorkReading().table(kHeadings8 + kRecord8).value()),
                Contains("Vel Promedio:|0|km/h"));
}

TEST(LoadRptTextTable, AsksWhenTheHeadingsAreNeitherFourNorEight) {
    const std::string table = kTitle + "a\tb\tc\td\te\tf\n" + kRecord8;
    for (const auto& [answer, loads] : {std::pair<std::optional<std::string>, bool>("8", true),
                                        {"5", false},
                                        {"", false},
                                        {std::nullopt, false}}) {
        WorkReading reading;
        reading.dialogs.inputAnswers = {answer};
        SCOPED_TRACE(answer.value_or("cancelled"));
        EXPECT_EQ(reading.table(table).has_value(), loads);
        EXPECT_EQ(reading.dialogs.messages.size(), answer && !loads ? 1U : 0U);
        EXPECT_THAT(reading.dialogs.inputs, ElementsAre("1111|Campora|8"));
    }
}

TEST(LoadRptTextTable, AnUnreadableLineEndsTheReading) {
    const std::tuple<const char*, std::string, std::size_t> rows[] = {
        {"too few fields", "-61.2\t-34.6001\t138\n", 1},
        {"no longitude", "x\t-34.6001\t1\t1\t1\t0\t3086\t10:20:00\n", 1},
        {"not a finite longitude", "1e999\t-34.6\t1\t1\t1\t0\t3086\t10:20:00\n", 1},
        {"binary", std::string("\0\xFF\t\n", 4), 1},
        {"one field more", "-61.2\t-34.6001\t1\t1\t1\t0\t3086\t10:20:00\tx\n", 3},
        {"beyond the pole: left out", "-61.2\t-94.6\t1\t1\t1\t0\t3086\t10:20:00\n", 2},
        {"other fields that are no numbers", "-61.2\t-34.6001\tx\tx\tx\tx\tx\tx\n", 3},
        {"blanks alone", " \t \n", 2},
    };
    for (const auto& [name, line, points] : rows) {
        SCOPED_TRACE(name);
        const LoadedWork work = WorkReading()
                                    .table(kHeadings8 + kRecord8 + line +
                                           "-61.2\t-34.6002\t1\t1\t1\t0\t3086\t10:20:00\n")
                                    .value();
        const std::vector<std::size_t> counts = pointCounts(work);
        EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), std::size_t{0}), points);
    }
}

}  // namespace
}  // namespace campora
