// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/problems.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "findings/made_job.h"

namespace campora {
namespace {

using Way = void (*)(MadeJob& job);
using Words = std::vector<std::string>;

constexpr std::uint32_t kKnown = 0b101;
constexpr FindingOptions kOptions{10, -1, kKnown};

/// "no-dose 10-14 10s 50m".
std::string shown(const Problem& problem) {
    static constexpr const char* kNames[] = {"no-dose", "off-dose", "alarm",
                                             "gap",     "speed",    "swath"};
    std::string text = kNames[static_cast<std::size_t>(problem.kind)];
    text += problem.alarm >= 0 ? std::to_string(problem.alarm) : "";
    text += " " + std::to_string(problem.firstRecord) + "-" + std::to_string(problem.lastRecord);
    text += problem.seconds ? " " + std::to_string(std::lround(*problem.seconds)) + "s" : "";
    return text + " " + std::to_string(std::lround(problem.metres)) + "m";
}

/// Straight on, with something else for some records in between.
template <typename Change>
void during(MadeJob& job, int steps, Change change) {
    const TrackDataRPT::Fields before = job.now;
    change(job.now);
    job.go(0, 10, steps);
    job.now = before;
}

TEST(Problems, AreFoundByKind) {
    struct Row {
        const char* name;
        Way drive;
        Words problems;
    };
    const Row rows[] = {
        {"nothing", [](MadeJob&) {}, {}},
        {"no dose",
         [](MadeJob& job) { during(job, 5, [](auto& now) { now.real[0] = 0; }); },
         {"no-dose 20-24 10s 50m"}},
        {"no dose and none specified",
         [](MadeJob& job) { during(job, 5, [](auto& now) { now.real[0] = now.spec[0] = 0; }); },
         {}},
        {"as far off as may be",
         [](MadeJob& job) { during(job, 5, [](auto& now) { now.real[0] = 110; }); },
         {}},
        {"farther off",
         [](MadeJob& job) { during(job, 5, [](auto& now) { now.real[0] = 89; }); },
         {"off-dose 20-24 10s 50m"}},
        {"two alarms at once, and one without a meaning",
         [](MadeJob& job) {
             during(job, 2, [](auto& now) { now.alarms = 0b011; });
             during(job, 2, [](auto& now) { now.alarms = 0b111; });
         },
         {"alarm0 20-23 8s 40m", "alarm2 22-23 4s 20m"}},
        {"faster",
         [](MadeJob& job) { during(job, 5, [](auto& now) { now.speed = 24; }); },
         {"speed 20-24 10s 50m"}},
        {"a little slower",
         [](MadeJob& job) { during(job, 5, [](auto& now) { now.speed = 13; }); },
         {}},
        {"faster without dose",
         [](MadeJob& job) {
             during(job, 5, [](auto& now) {
                 now.speed = 30;
                 now.real[0] = now.spec[0] = 0;
             });
         },
         {}},
        {"part of the boom",
         [](MadeJob& job) { during(job, 5, [](auto& now) { now.swath = 15; }); },
         {"swath 20-24 10s 50m"}},
        {"records missing by the clock",
         [](MadeJob& job) {
             job.second += 60;
             during(job, 2, [](auto& now) { now.alarms = 1; });
         },
         {"gap 19-20 62s 10m", "alarm0 20-21 4s 20m"}},
        {"an alarm does not last through a gap",
         [](MadeJob& job) {
             during(job, 3, [](auto& now) { now.alarms = 1; });
             job.second += 600;
         },
         {"alarm0 20-21 4s 20m", "gap 22-23 602s 10m"}},
        {"a way without records", [](MadeJob& job) { job.north += 45; }, {"gap 19-20 2s 55m"}},
        {"two passes of the log on one line, records missing",
         [](MadeJob& job) {
             job.newPass();
             job.north += 100;
             job.second += 30;
         },
         {"gap 19-20 32s 110m"}},
        {"two passes of the log, and no time between",
         [](MadeJob& job) {
             job.newPass();
             job.north += 100;
         },
         {}},
        {"less than 3 s apart",
         [](MadeJob& job) {
             during(job, 2, [](auto& now) { now.real[0] = 0; });
             job.go(0, 10, 1);
             during(job, 2, [](auto& now) { now.real[0] = 0; });
             job.go(0, 10, 2);
             during(job, 2, [](auto& now) { now.real[0] = 0; });
         },
         {"no-dose 20-24 10s 50m", "no-dose 27-28 4s 20m"}},
        {"shorter than 2 s and 10 m",
         [](MadeJob& job) {
             job.interval = 1;
             const TrackDataRPT::Fields before = job.now;
             job.now.real[0] = 0;
             job.go(0, 9);
             job.now = before;
             job.interval = 2;
         },
         {}},
        {"in a turn",
         [](MadeJob& job) {
             job.now.real[0] = 0;
             job.turnBack();
             job.now.real[0] = 100;
             job.go(0, -10, 20);
             job.newPass();
         },
         {}},
        {"over a clock that goes back",
         [](MadeJob& job) {
             during(job, 5, [](auto& now) { now.real[0] = 0; });
             job.second = 20;
         },
         {"no-dose 20-24 50m"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        MadeJob job;
        job.go(0, 10, 20);
        row.drive(job);
        job.go(0, 10, 60);
        Words problems;
        for (const Problem& problem : findProblems(job.layers(), kOptions).rows) {
            problems.push_back(shown(problem));
        }
        EXPECT_EQ(problems, row.problems);
    }
}

TEST(Problems, HaveTheirFigures) {
    struct Row {
        const char* name;
        TrackDataRPT::Doses real;
        int asked;
        int channel;
        double dose, specified, lost;
    };
    const Row rows[] = {
        {"the channel that was asked for", {150, 10}, 0, -1, 150, 100, 0.06},
        {"a right sum, the second channel farther off", {150, 10}, -1, 1, 10, 60, 0.1},
        {"the first channel alone", {120, 60}, -1, 0, 120, 100, 0.024},
        {"all channels alike", {120, 72}, -1, -1, 192, 160, 0.024},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        MadeJob job;
        job.now.channels = 2;
        job.now.spec = {100, 60};
        job.now.real = {100, 60};
        job.go(0, 10, 10);
        job.now.real = row.real;
        job.go(0, 10, 6);  // 60 m, 0.12 ha
        job.now.real = {100, 60};
        job.go(0, 10, 10);
        const Problems found = findProblems(job.layers(), {10, row.asked, 0});
        ASSERT_EQ(found.rows.size(), 1U);
        const Problem& problem = found.rows[0];
        EXPECT_EQ(problem.kind, ProblemKind::OffDose);
        EXPECT_EQ(problem.channel, row.channel);
        EXPECT_NEAR(*problem.hectares, 0.12, 1e-9);
        EXPECT_NEAR(*problem.dose, row.dose, 1e-9);
        EXPECT_NEAR(*problem.specified, row.specified, 1e-9);
        EXPECT_NEAR(*problem.lost, row.lost, 1e-9);
        EXPECT_NEAR(problem.position.y, atMetres(0, 130).y, 1e-9);
        EXPECT_EQ(positionsOf(job.layers(), 10, 12),
                  (std::vector{atMetres(0, 100), atMetres(0, 110), atMetres(0, 120)}));
    }
}

TEST(Problems, NeedNoClockNoSpeedAndNoSoundValues) {
    MadeJob job;
    job.now.date.reset();
    job.interval = 0;
    job.now.speed = std::numeric_limits<float>::infinity();
    job.go(0, 10, 5);
    job.now.swath = -std::numeric_limits<float>::quiet_NaN();
    job.now.real[0] = 0;
    job.go(0, 10, 5);
    job.now.real[0] = -5;
    job.go(0, 10, 5);
    const std::vector<Problem> rows = findProblems(job.layers(), kOptions).rows;
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(shown(rows[0]), "no-dose 5-13 90m");
    EXPECT_EQ(shown(rows[1]), "swath 5-13 90m");
    EXPECT_EQ(rows[0].start.clock, RecordClock::None);
    EXPECT_EQ(rows[0].hectares, 0);
    EXPECT_FALSE(rows[0].lost) << "on no ground";
    EXPECT_TRUE(findProblems({}, kOptions).rows.empty());
}

}  // namespace
}  // namespace campora
