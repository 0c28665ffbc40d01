// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/pass_rules.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/work_records.h"

namespace campora {
namespace {

TEST(TurningAngle, IsZeroStraightOnAndForAReversal) {
    const std::tuple<const char*, StepDirection, StepDirection, float> rows[] = {
        {"straight on", {1, 0}, {2, 0}, 0},
        {"right angle", {1, 0}, {0, -3}, 90},
        {"reversal", {1, 0}, {-1, 0}, 0},
        {"reversal within single precision", {1, 0}, {-1, 1e-5}, 0},
        {"no arriving step", {0, 0}, {1, 0}, 0},
    };
    for (const auto& [name, arriving, leaving, degrees] : rows) {
        EXPECT_NEAR(turningAngle(arriving, leaving), degrees, 1e-4) << name;
    }
}

TEST(TurningAngle, StepsEastAreShorterAwayFromTheEquator) {
    const StepDirection step = stepDirection({-60, 60}, {-59, 61});
    EXPECT_NEAR(step.x, 0.5, 1e-12);
    EXPECT_DOUBLE_EQ(step.y, 1);
}

/// Where a machine of swath `swath` goes, metres east and north, and what becomes of each record:
/// O opens, T turns, C continues, S stays, - left out.
std::string placementsOf(PassSplitter& splitter, const std::vector<LonLat>& way, float swath) {
    std::string letters;
    for (const LonLat& at : way) {
        const auto placement = splitter.place(atMetres(at.x, at.y), swath);
        letters.push_back(std::string_view("-OTCS")[static_cast<std::size_t>(placement)]);
    }
    return letters;
}

TEST(PassSplitter, EndsPassesAtBreaksAndTurns) {
    const PassLimits report = kReportLimits;
    const PassLimits table = kTableLimits;
    const std::tuple<const char*, PassLimits, float, std::vector<LonLat>, const char*> rows[] = {
        {"up to three swaths", report, 20, {{0, 0}, {59.9, 0}}, "OC"},
        {"beyond three swaths", report, 20, {{0, 0}, {60.1, 0}}, "OO"},
        {"never within 50 metres in a report", report, 5, {{0, 0}, {49, 0}}, "OC"},
        {"but in a table", table, 5, {{0, 0}, {49, 0}}, "OO"},
        {"right angle", report, 20, {{0, 0}, {10, 0}, {10, 10}}, "OCC"},
        {"half a degree more", report, 20, {{0, 0}, {10, 0}, {9.913, 10}}, "OCT"},
        {"still hides a turn", report, 20, {{0, 0}, {10, 0}, {10, 0}, {5, 5}}, "OCSC"},
        {"turns after a break", report, 20, {{0, 0}, {10, 0}, {200, 0}, {195, 5}}, "OCOT"},
        {"a single far record", report, 20, {{0, 0}, {10001, 0}, {10, 0}}, "O-C"},
        {"a table has no glitches", table, 20, {{0, 0}, {20000, 0}, {10, 0}}, "OOO"},
        {"another field", report, 20, {{0, 0}, {20000, 0}, {20010, 0}, {20020, 0}}, "O-OC"},
        {"all apart", report, 20, {{0, 0}, {20000, 0}, {60000, 0}, {10, 0}}, "O--C"},
    };
    for (const auto& [name, limits, swath, way, placements] : rows) {
        SCOPED_TRACE(name);
        PassSplitter splitter(limits);
        EXPECT_EQ(placementsOf(splitter, way, swath), placements);
    }
}

TEST(PassSplitter, AddsUpStepsWithinPassesOnly) {
    PassSplitter splitter(kReportLimits);
    // A pass of 10 m, standing still, a turn of 10 m; a break; a glitch; a pass of 20 m.
    placementsOf(splitter, {{0, 0}, {10, 0}, {10, 0}, {4, 8}, {500, 0}, {50000, 0}, {520, 0}}, 20);
    EXPECT_EQ(splitter.steps(), 4);
    EXPECT_NEAR(splitter.squareMetres(), (10 + 10 + 20) * 20, 0.01);
}

TEST(PassSplitter, AStepIsAsWideAsWhereItStarts) {
    PassSplitter splitter(kReportLimits);
    for (const auto& [east, swath] : {std::pair(0, 10.0F), {5, 30.0F}, {7, 1.0F}}) {
        splitter.place(atMetres(east, 0), swath);
    }
    EXPECT_NEAR(splitter.squareMetres(), 5 * 10 + 2 * 30, 0.01);
}

}  // namespace
}  // namespace campora
