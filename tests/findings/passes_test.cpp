// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/passes.h"

#include <gtest/gtest.h>

#include "findings/made_job.h"
#include "findings/problems.h"

namespace campora {
namespace {

using Way = void (*)(MadeJob& job);

struct Row {
    const char* name;
    Way drive;
    /// First and last record of each pass.
    std::vector<std::pair<std::size_t, std::size_t>> passes;
    std::size_t turns;
};

void upAndDown(MadeJob& job) {
    job.go(0, 10, 20).turnBack();
    job.go(0, -10, 20);
}

TEST(Passes, EndWhereTheWorkTurns) {
    const Row rows[] = {
        {"straight on", [](MadeJob& job) { job.go(0, 10, 21); }, {{0, 20}}, 0},
        {"a turn on the headland", upAndDown, {{0, 20}, {30, 49}}, 1},
        {"a turn slower than 60 degrees in 10 s",
         [](MadeJob& job) {
             for (int i = 0; i < 40; ++i) {
                 job.go(10 * std::sin(i * 0.15), 10 * std::cos(i * 0.15));
             }
         },
         {{0, 39}},
         0},
        {"a corner turns in no time",
         [](MadeJob& job) { job.go(0, 10, 10).go(10, 0, 11); },
         {{0, 10}, {10, 20}},
         1},
        {"undosed from corner to corner: one turn",
         [](MadeJob& job) {
             job.go(0, 10, 10);
             job.now.real[0] = 0;
             job.go(10, 0, 3);
             job.now.real[0] = 100;
             job.go(0, -10, 10);
         },
         {{0, 10}, {13, 22}},
         1},
        {"dosed from corner to corner: a pass between two turns",
         [](MadeJob& job) { job.go(0, 10, 10).go(10, 0, 3).go(0, -10, 10); },
         {{0, 10}, {10, 13}, {13, 22}},
         2},
        {"the boom is switched near the turn, and far from it",
         [](MadeJob& job) {
             const auto undosed = [&job](double north, int steps) {
                 job.now.real[0] = 0;
                 job.go(0, north, steps);
                 job.now.real[0] = 100;
             };
             job.go(0, 10, 20);
             undosed(4, 2);
             job.turnBack();
             undosed(-4, 3);
             job.go(0, -10, 20);
         },
         {{0, 20}, {32, 54}},
         1},
        {"passes of the log one way and back",
         [](MadeJob& job) {
             job.go(0, 10, 11);
             job.newPass();
             job.east += 20;
             job.go(0, -10, 11);
         },
         {{0, 10}, {11, 21}},
         1},
        {"passes of the log on one line",
         [](MadeJob& job) {
             job.go(0, 10, 11);
             job.newPass();
             job.north += 100;
             job.go(0, 10, 11);
         },
         {{0, 10}, {11, 21}},
         0},
        {"positions rounded to half a metre, five a second, are no turns",
         [](MadeJob& job) {
             job.interval = 0;
             for (int i = 0; i < 400; ++i) {
                 job.east = i % 2 == 0 ? 0 : 0.4;
                 job.go(0, 0.8);
                 job.second += i % 5 == 4 ? 1 : 0;
             }
         },
         {{0, 399}},
         0},
        {"without a clock the way at its speed tells the time",
         [](MadeJob& job) {
             job.interval = 0;
             job.now.date.reset();
             upAndDown(job);
         },
         {{0, 20}, {30, 49}},
         1},
        {"too short for a pass", [](MadeJob& job) { job.go(0, 4, 2).interval = 1; }, {{0, 1}}, 0},
        {"one record", [](MadeJob& job) { job.go(0, 10); }, {}, 0},
        {"none", [](MadeJob&) {}, {}, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        MadeJob job;
        row.drive(job);
        const auto layers = job.layers();
        std::vector<std::pair<std::size_t, std::size_t>> passes;
        for (const Pass& pass : findPasses(layers, {})) {
            passes.emplace_back(pass.firstRecord, pass.lastRecord);
        }
        EXPECT_EQ(passes, row.passes);
        EXPECT_EQ(findProblems(layers, {}).turns, row.turns);
    }
}

TEST(Passes, HaveTheirFigures) {
    MadeJob job;
    job.now.channels = 2;
    job.now.spec = {100, 50};
    job.now.real = {90, 50};
    job.go(0, 10, 10);  // 100 m, 0.2 ha
    job.now.real = {130, 50};
    job.now.speed = 36;
    job.go(0, 20, 5);  // 100 m
    job.now.real = {0, 0};
    job.go(0, 10, 6);  // 50 m
    const std::vector<Pass> passes = findPasses(job.layers(), {10, 0, 0});
    ASSERT_EQ(passes.size(), 1U);
    const Pass& pass = passes[0];
    EXPECT_EQ(pass.start.second, (dayNumber({2025, 11, 14}) * std::int64_t{86400}) + 8 * 3600);
    EXPECT_DOUBLE_EQ(*pass.seconds, 40);
    EXPECT_NEAR(pass.metres, 250, 1e-6);
    EXPECT_NEAR(pass.hectares, 0.4, 1e-9);
    EXPECT_NEAR(*pass.dose, 110, 1e-9);
    EXPECT_NEAR(*pass.doseDeviation, 20, 1e-9);
    EXPECT_NEAR(*pass.speedKmh, (20 * 18 + 20 * 36) / 40.0, 1e-9);
    EXPECT_NEAR(*pass.headingDegrees, 0, 1e-9);
    EXPECT_NEAR(*pass.largestError, 0.3, 1e-9);
    EXPECT_NEAR(*findPasses(job.layers(), {}).front().dose, 160, 1e-9) << "all channels";
    EXPECT_FALSE(findPasses(job.layers(), {10, 3, 0}).front().dose) << "no such channel";
}

TEST(Passes, SayNothingThatTheLogDoesNotTell) {
    MadeJob job;
    job.now.spec[0] = 0;
    job.now.speed = 0;
    job.now.swath = std::numeric_limits<float>::quiet_NaN();
    job.go(0, 10, 10);
    job.second -= 1000;
    job.go(0, 10, 10);
    const Pass pass = findPasses(job.layers(), {}).front();
    EXPECT_FALSE(pass.seconds);
    EXPECT_FALSE(pass.speedKmh);
    EXPECT_FALSE(pass.dose) << "on no ground";
    EXPECT_EQ(pass.hectares, 0);
    EXPECT_FALSE(pass.largestError);

    MadeJob night;
    night.now.date.reset();
    night.second = 86400 - 10;
    EXPECT_DOUBLE_EQ(*findPasses(night.go(0, 10, 11).layers(), {}).front().seconds, 20);
}

}  // namespace
}  // namespace campora
