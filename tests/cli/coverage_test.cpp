// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "support/batch_run.h"

namespace campora {
namespace {

using CoverageCommand = BatchRun;

TEST_F(CoverageCommand, TellsFilesAndAllTogether) {
    static_cast<void>(report("a.rpt"));
    static_cast<void>(report("b.rpt"));
    // The first ten metres of the pass, and ten to the north of them.
    ASSERT_EQ(run("lot 0.00898311,0.00889328 0.00907294,0.00889328 0.00907294,0.00916277 "
                  "0.00898311,0.00916277 -o @l.lot")
                  .status,
              0);
    const Outcome told = run("coverage @a.rpt @b.rpt --lot @l.lot --json");
    ASSERT_EQ(told.status, 0) << told.boxes;
    const auto json = nlohmann::json::parse(told.out);
    ASSERT_EQ(json["files"].size(), 2U);
    EXPECT_THAT(json["files"][1]["path"].get<std::string>(), testing::EndsWith("/b.rpt"));
    EXPECT_FALSE(json["total"]["skippedIsEstimate"]);
    const std::tuple<const char*, double, double> figures[] = {
        {"grossHa", 0.04, 0.08},  {"dosedHa", 0.04, 0.08},  {"undosedHa", 0, 0},
        {"netHa", 0.04, 0.04},    {"overlapHa", 0, 0.04},   {"skippedHa", 0.01, 0.01},
        {"insideHa", 0.02, 0.02}, {"outsideHa", 0.02, 0.02}};
    for (const auto& [name, ofFile, ofAll] : figures) {
        EXPECT_NEAR(json["files"][0][name].get<double>(), ofFile, 1e-4) << name;
        EXPECT_NEAR(json["total"][name].get<double>(), ofAll, 1e-4) << name;
    }
}

TEST_F(CoverageCommand, RefusesWhatHasNoWork) {
    folder.write("l.txt", "x");
    EXPECT_EQ(run("coverage @l.txt").status, 1);
    EXPECT_EQ(run("coverage").status, 2);
}

}  // namespace
}  // namespace campora
