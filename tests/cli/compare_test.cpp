// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/batch_run.h"
#include "support/zone_map.h"

namespace campora {
namespace {

using testing::HasSubstr;

struct CompareRun : BatchRun {
    CompareRun() {
        report("a.rpt");
        rowOfZones({"80", "50"}, {0, 0}).write(folder, "zonas");
    }
};

/// Two steps of 10 m by 20 m with 100 where 80 was prescribed.
TEST_F(CompareRun, TellsWhatWasPrescribedAndApplied) {
    const Outcome csv = run("compare @zonas.shp,DOSIS @a.rpt --csv --decimal , --limit 25");
    EXPECT_EQ(csv.status, 0) << csv.boxes;
    EXPECT_THAT(csv.out, testing::StartsWith("channel;dose;hectares;prescribedProduct;"
                                             "appliedProduct;within\r\n1;80;0,0"));
    EXPECT_THAT(csv.out, testing::EndsWith(";1\r\n"));
    const Outcome json = run("compare @zonas.shp @a.rpt --json --limit 20");
    for (const char* part : {"\"prescription\": ", "\"jobs\": [", "\"meanDeviation\": 25",
                             "\"within20\": 0", "\"dose\": 80", "\"within\": 0"}) {
        EXPECT_THAT(json.out, HasSubstr(part));
    }
    const Outcome text = run("compare @zonas.shp @a.rpt --language en");
    EXPECT_THAT(text.out, HasSubstr("Channel 1: mean deviation: 25.0 %"));
}

TEST_F(CompareRun, RefusesWhatCannotBeCompared) {
    struct Row {
        const char* name;
        std::string line;
        int status;
    };
    const Row rows[] = {
        {"no job", "compare @zonas.shp", 2},
        {"no such column", "compare @zonas.shp,NOMBRE @a.rpt", 1},
        {"no prescription", "compare @a.rpt @a.rpt", 1},
        {"no such channel", "compare @zonas.shp @a.rpt --channel 2", 1},
        {"zones are no job", "compare @zonas.shp @zonas.shp", 1},
        {"a picture without its prescription", "render @a.rpt --mode compare -o @a.png", 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Outcome outcome = run(row.line);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_FALSE(outcome.boxes.empty());
        EXPECT_TRUE(outcome.out.empty());
    }
    EXPECT_EQ(run("render @a.rpt --mode compare --prescription @zonas.shp -o @a.png").status, 0);
}

}  // namespace
}  // namespace campora
