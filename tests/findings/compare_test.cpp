// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/compare.h"

#include <array>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "presc/gph_vrt.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

/// Three cells of 20 m from 0, 0 to the east, for 100, 50 and nothing in the first channel.
GphVRT threeCells(int channels = 1) {
    std::vector<std::int16_t> doses;
    for (const std::int16_t dose : std::array<std::int16_t, 3>{10000, 5000, 0}) {
        doses.insert(doses.end(), static_cast<std::size_t>(channels), dose);
    }
    return {"plan.vrt", {{0, 0, 20, 3, 1, channels, "", ""}, doses}, Color{}, '.'};
}

/// A pass to the east through the middle of the cells, or that far north: steps of 10 m, 20 m wide,
/// two a cell.
GphTrack passWith(std::initializer_list<std::int32_t> doses, std::size_t channels = 1,
                  double north = 10) {
    GphTrack track;
    double east = 0;
    const auto add = [&](std::int32_t dose) {
        TrackDataRPT::Fields fields = reportFields(dose);
        fields.channels = static_cast<std::uint8_t>(channels);
        const LonLat at = atMetres(east, north);
        track.addPoint(at.x, at.y, TrackDataRPT(fields));
        east += 10;
    };
    for (const std::int32_t dose : doses) {
        add(dose);
    }
    add(0);
    return track;
}

constexpr double kNear = 1e-6;

TEST(Compare, KnownDosesInKnownCellsGiveTheArithmeticAnswer) {
    const GphVRT plan = threeCells();
    const GphTrack job = passWith({100, 104, 60, 0, 30, 0, 80});
    const NetWork work({&job});
    const auto channels = channelPairs(work.layers(), plan, std::nullopt);
    ASSERT_EQ(channels.size(), 1U);
    const Comparison whole = compareDoses(work, plan, channels, 10);
    EXPECT_NEAR(whole.netHa, 0.10, kNear);
    EXPECT_NEAR(whole.againHa, 0, kNear);
    EXPECT_NEAR(whole.undosedHa, 0.04, kNear);
    EXPECT_NEAR(whole.outsideHa, 0.02, kNear);
    const ChannelComparison& sum = whole.channels.at(0);
    EXPECT_NEAR(sum.netHa, 0.08, kNear);
    EXPECT_NEAR(sum.prescribed, 5, kNear);
    EXPECT_NEAR(sum.applied, 4.08 + 1.2 + 0.6, kNear);
    EXPECT_NEAR(sum.meanDeviation.value_or(0), (0 + 4 + 20) / 3.0, kNear);
    EXPECT_NEAR(sum.within(0).value_or(0), 0.5, kNear);
    EXPECT_NEAR(sum.within(1).value_or(0), 0.5, kNear);
    EXPECT_NEAR(sum.within(2).value_or(0), 0.75, kNear);
    struct Row {
        float dose;
        double hectares, prescribed, applied, within;
    };
    const Row rows[] = {{0, 0.02, 0, 0.6, 0}, {50, 0.02, 1, 1.2, 0}, {100, 0.04, 4, 4.08, 1}};
    ASSERT_EQ(sum.doses.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(rows[i].dose);
        EXPECT_EQ(sum.doses[i].dose, rows[i].dose);
        EXPECT_NEAR(sum.doses[i].netHa, rows[i].hectares, kNear);
        EXPECT_NEAR(sum.doses[i].prescribed, rows[i].prescribed, kNear);
        EXPECT_NEAR(sum.doses[i].applied, rows[i].applied, kNear);
        EXPECT_NEAR(sum.doses[i].within().value_or(-1), rows[i].within, kNear);
    }
    // Where nothing was to be applied the ground is not the prescription's.
    EXPECT_NEAR(commonGround(work, plan).value_or(0), 0.6, kNear);
}

TEST(Compare, GroundWorkedAgainCountsOnceAndIsJudgedByItsFirstPass) {
    const GphVRT plan = threeCells();
    const GphTrack first = passWith({100, 100, 100, 100});
    const GphTrack second = passWith({50, 50, 50, 50}, 1, 18);  // 8 m farther: 12 m twice
    const NetWork work({&first, &second});
    const Comparison whole =
        compareDoses(work, plan, channelPairs(work.layers(), plan, std::nullopt), 10);
    constexpr double kCells = 0.005;
    const auto isNear = [](double figure, double expected) {
        EXPECT_NEAR(figure, expected, kCells * expected);
    };
    isNear(whole.netHa, 0.08 + 0.032);
    isNear(whole.againHa, 0.048);
    const ChannelComparison& sum = whole.channels.at(0);
    isNear(sum.netHa, 0.112);
    EXPECT_NEAR(sum.prescribed, 0.08 * 100 + 0.08 * 50, kNear);
    EXPECT_NEAR(sum.applied, 0.08 * 100 + 0.08 * 50, kNear);
    isNear(sum.meanDeviation.value_or(0), (0.016 * -50 + 0.04 * 100) / 0.112);
    isNear(sum.within(1).value_or(0), (0.04 + 0.016) / 0.112);
    for (const auto& [place, within] : {std::pair(1, 0.04), std::pair(0, 0.016)}) {
        const DoseComparison& ofDose = sum.doses.at(static_cast<std::size_t>(place));
        isNear(ofDose.netHa, 0.04 + 0.016);
        isNear(ofDose.within().value_or(0), within / 0.056);
        EXPECT_NEAR(ofDose.applied, 6, kNear);
        EXPECT_NEAR(ofDose.meanDose().value_or(0), 75, kNear);
    }
    // Two thirds of the ground are the prescription's, though four fifths of the way are.
    const GphTrack across = passWith({10, 10, 10, 10, 10, 10});
    isNear(commonGround(NetWork({&across, &first}), plan).value_or(0), 2.0 / 3);
}

TEST(Compare, WithoutGroundThereAreNoFigures) {
    const GphVRT plan = threeCells();
    const GphTrack still = passWith({});
    const GphTrack undosed = passWith({0, 0});
    for (const WorkLayer* layer :
         {static_cast<const WorkLayer*>(&still), static_cast<const WorkLayer*>(&undosed)}) {
        const NetWork work({layer});
        const auto channels = channelPairs(work.layers(), plan, {});
        const Comparison none = compareDoses(work, plan, channels, 10);
        ASSERT_EQ(none.channels.size(), 1U);
        EXPECT_FALSE(none.channels[0].meanDeviation);
        EXPECT_FALSE(none.channels[0].within(2));
        EXPECT_TRUE(none.channels[0].doses.empty());
        EXPECT_FALSE(commonGround(work, plan));
    }
}

TEST(Compare, ChannelsOfJobAndPrescriptionArePaired) {
    struct Row {
        const char* name;
        int planned;
        std::size_t applied;
        std::optional<int> asked;
        std::vector<std::pair<int, int>> pairs;
    };
    const Row rows[] = {
        {"what both have", 2, 3, {}, {{0, 0}, {1, 1}}},
        {"the one asked for", 2, 3, 1, {{1, 1}}},
        {"one that the prescription lacks", 2, 3, 2, {}},
        {"the only one serves any", 1, 3, 2, {{2, 0}}},
        {"one that the job lacks", 1, 1, 2, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const GphVRT plan = threeCells(row.planned);
        const GphTrack job = passWith({10}, row.applied);
        const WorkLayer* const work[] = {&job};
        std::vector<std::pair<int, int>> pairs;
        for (const auto& [ofJob, ofSource] : channelPairs(work, plan, row.asked)) {
            pairs.emplace_back(ofJob, ofSource);
        }
        EXPECT_EQ(pairs, row.pairs);
    }
}

}  // namespace
}  // namespace campora
