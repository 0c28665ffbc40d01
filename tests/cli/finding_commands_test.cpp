// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "support/batch_run.h"

namespace campora {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// Three points 10 m apart at one time, 50 applied and 100 specified, with an alarm.
struct Findings : BatchRun {
    Findings() { folder.write("a, b.rpt", reportBytes(500)); }
};

TEST_F(Findings, AreRowsOfTheirTable) {
    const std::string path = folder.file("a, b.rpt");
    EXPECT_EQ(run({"passes", path, "--csv"}).out,
              "file,pass,start,seconds,metres,hectares,dose,doseDeviation,speedKmh,headingDegrees,"
              "largestError\r\n\"" +
                  path + "\",1,2018-03-05T10:00:00,,20.000015,0.04,50,0,12,90,0.5\r\n");
    const std::string rows = run({"problems", path, "--csv", "--decimal", ","}).out;
    EXPECT_THAT(rows, StartsWith("file;kind;alarm;start;seconds;metres;hectares;dose;specified;"
                                 "lost;lon;lat;firstRecord;lastRecord\r\n" +
                                 path + ";alarm;Presión Máxima;2018-03-05T10:00:00;;20,000015;"));
    EXPECT_THAT(rows, HasSubstr(path + ";off-dose;;2018-03-05T10:00:00;;20,000015;0,04;50;100;"));
    EXPECT_THAT(rows, EndsWith(";0;1\r\n"));
    const auto json = nlohmann::json::parse(run({"problems", path, "--json"}).out);
    EXPECT_EQ(json["turns"], 0);
    EXPECT_EQ(json["problems"][1]["kind"], "off-dose");
    EXPECT_TRUE(json["problems"][1]["alarm"].is_null());
    EXPECT_EQ(json["problems"][1]["lost"], 0.02);
    EXPECT_EQ(
        run({"problems", path, "--language", "en", "--error-limit", "60"}).out,
        "File      Problem                  Start                Duration  Length (m)  Hectares"
        "  Dose/ha  Specified/ha  Loss (ha)  Position\n"
        "a, b.rpt  Alarm: Maximum pressure  05/03/2018 10:00:00         –          20     0.040"
        "     50.0         100.0      0.020  0.008983; 0.009073\n"
        "Turns left out: 0\n");
}

}  // namespace
}  // namespace campora
