// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/coverage.h"

#include <cmath>
#include <numbers>
#include <numeric>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lots/merge_outlines.h"
#include "model/geodesy.h"
#include "model/measures.h"
#include "model/swath_geometry.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

struct Place {
    double east = 0;
    double north = 0;
};
using Line = std::vector<Place>;

/// Lines driven on the ground, turned by `degrees` about a place in the south.
class Job {
public:
    explicit Job(double degrees = 0) : angle_(degrees / 180 * std::numbers::pi) {}

    [[nodiscard]] LonLat at(Place place) const {
        constexpr LonLat kPlace{-61.5, -33.2};
        const double east = place.east * std::cos(angle_) - place.north * std::sin(angle_);
        const double north = place.east * std::sin(angle_) + place.north * std::cos(angle_);
        return {kPlace.x + east / metresPerDegreeEast(kPlace.y),
                kPlace.y + north / METERS_PER_DEGREE};
    }
    /// A record every `step` metres.
    void drive(const Line& line, std::int32_t dose = 100, double step = 7) {
        GphTrack& track = tracks_.emplace_back();
        const auto record = reportRecord(dose, 20);
        for (std::size_t i = 0; i + 1 < line.size(); ++i) {
            const double east = line[i + 1].east - line[i].east;
            const double north = line[i + 1].north - line[i].north;
            const double count = std::ceil(std::hypot(east, north) / step);
            for (double part = 0; part < count; ++part) {
                const LonLat place =
                    at({line[i].east + east * part / count, line[i].north + north * part / count});
                track.addPoint(place.x, place.y, record);
            }
        }
        const LonLat end = at(line.back());
        track.addPoint(end.x, end.y, record);
    }
    /// 500 metres to the east and back, from each of these places north.
    void rows(const std::vector<double>& norths) {
        for (const double north : norths) {
            drive({{0, north}, {500, north}});
        }
    }
    [[nodiscard]] std::vector<const WorkLayer*> passes() const {
        std::vector<const WorkLayer*> passes;
        for (const GphTrack& track : tracks_) {
            passes.push_back(&track);
        }
        return passes;
    }
    [[nodiscard]] Coverage cover(const std::vector<Line>& lots = {}) const {
        std::vector<std::vector<LonLat>> rings;
        for (const Line& lot : lots) {
            rings.emplace_back();
            for (const Place& place : lot) {
                rings.back().push_back(at(place));
            }
        }
        return coverGround(passes(), std::vector<LotRing>(rings.begin(), rings.end()));
    }
    [[nodiscard]] const std::vector<GphTrack>& tracks() const { return tracks_; }

private:
    double angle_;
    std::vector<GphTrack> tracks_;
};

Line box(double west, double south, double east, double north) {
    return {{west, south}, {east, south}, {east, north}, {west, north}};
}

MATCHER_P(IsHectares, expected, "") {
    *result_listener << "not " << expected;
    return std::abs(arg - expected) <= 0.005 * expected + 1e-9;
}

class AnyDirection : public testing::TestWithParam<double> {};
INSTANTIATE_TEST_SUITE_P(Coverage, AnyDirection, testing::Values(0, 17, 31.7, 45, 90, 135));

TEST_P(AnyDirection, RowsAMetreTooCloseOverlapByAMetre) {
    Job job(GetParam());
    for (int row = 0; row < 20; ++row) {
        job.rows({19.0 * row});
    }
    const CoverageFigures figures = job.cover().figures;
    EXPECT_THAT(figures.gross, IsHectares(20));
    EXPECT_THAT(figures.net, IsHectares(19.05));
    EXPECT_THAT(figures.overlap, IsHectares(0.95));
    EXPECT_THAT(figures.once, IsHectares(18.1));
    EXPECT_THAT(figures.twice, IsHectares(0.95));
    EXPECT_DOUBLE_EQ(figures.net + figures.overlap, figures.dosed);
    EXPECT_THAT(figures.skipped, testing::Optional(testing::Lt(0.005)));
    // The first row is new ground, every other one but for a metre; all steps of a row alike.
    const std::vector<double> fresh = newlyCovered(job.passes());
    constexpr std::size_t kSteps = 72;
    ASSERT_EQ(fresh.size(), 20 * kSteps);
    EXPECT_NEAR(std::accumulate(fresh.begin(), fresh.end(), 0.0), figures.net, 1e-9);
    EXPECT_THAT(std::accumulate(fresh.begin(), fresh.begin() + kSteps, 0.0), IsHectares(1));
    EXPECT_THAT(std::accumulate(fresh.end() - kSteps, fresh.end(), 0.0), IsHectares(0.95));
}

TEST_P(AnyDirection, AHeadlandDrivenTwiceCountsOnceAndAgain) {
    Job job(GetParam());
    const Line round{{0, 0}, {150, 0}, {150, 200}, {-150, 200}, {-150, 0}, {0, 0}};
    Line twice = round;
    twice.insert(twice.end(), round.begin() + 1, round.end());
    job.drive(twice);
    const CoverageFigures figures = job.cover().figures;
    EXPECT_THAT(figures.net, IsHectares(2));
    EXPECT_THAT(figures.overlap, IsHectares(2));
    EXPECT_THAT(figures.twice + figures.more, IsHectares(2));
}

TEST_P(AnyDirection, ATightTurnIsNoOverlap) {
    Job job(GetParam());
    job.drive({{0, 0}, {100, 0}, {100, 100}, {40, 100}}, 100, 1);
    // 260 metres of 20, less what the inner side of a corner covers a second time.
    const CoverageFigures figures = job.cover().figures;
    EXPECT_NEAR(figures.net, 0.52, 0.01);
    EXPECT_LT(figures.overlap, 0.0005);
    EXPECT_LT(figures.twice + figures.more, 0.0005);
    job.drive({{100, 20}, {100, 80}});
    EXPECT_THAT(job.cover().figures.overlap, IsHectares(0.12)) << "another pass";
}

TEST_P(AnyDirection, ARowLeftOutIsSkippedWithAndWithoutALot) {
    Job job(GetParam());
    job.rows({0, 20, 40, 60, 100, 120, 140});
    job.drive({{-10, -10}, {-10, 150}});
    job.drive({{510, -10}, {510, 150}});
    const CoverageFigures estimate = job.cover().figures;
    EXPECT_THAT(estimate.skipped, testing::Optional(IsHectares(1)));
    EXPECT_TRUE(estimate.skippedIsEstimate);
    EXPECT_EQ(estimate.inside, std::nullopt);
    // The southern half twice, to be counted once; 100 metres of the headlands stand out.
    const CoverageFigures exact = job.cover({box(0, -10, 500, 150), box(0, -10, 500, 70)}).figures;
    EXPECT_THAT(exact.skipped, testing::Optional(IsHectares(1)));
    EXPECT_FALSE(exact.skippedIsEstimate);
    EXPECT_THAT(exact.inside, testing::Optional(IsHectares(7)));
    EXPECT_THAT(exact.outside, testing::Optional(IsHectares(0.64)));
}

TEST_P(AnyDirection, WindingRowsCoverTheUnionOfTheirSwaths) {
    Job job(GetParam());
    Line winding;
    for (int i = 0; i <= 200; ++i) {
        winding.push_back({4.0 * i, 9 * std::sin(i / 12.0)});
    }
    job.drive(winding);
    job.drive({{0, 4}, {800, 6}});
    std::vector<Ring> outlines;
    for (const GphTrack& track : job.tracks()) {
        Ring& outline = outlines.emplace_back();
        for (std::size_t i = 0; i < track.points().size(); ++i) {
            const auto [left, right] = groundSwathCorners(track.points(), i, 20);
            outline.insert(outline.begin(), left);
            outline.push_back(right);
        }
    }
    const MergedOutlines merged = mergeOutlines(outlines);
    ASSERT_EQ(merged.rings.size(), 1U);
    ASSERT_EQ(merged.holes, 0);
    double twice = 0;
    const LonLat corner = merged.rings[0][0];
    for (std::size_t i = 0; i < merged.rings[0].size(); ++i) {
        const LonLat a = merged.rings[0][i];
        const LonLat b = merged.rings[0][(i + 1) % merged.rings[0].size()];
        twice += (a.x - corner.x) * (b.y - corner.y) - (b.x - corner.x) * (a.y - corner.y);
    }
    const double hectares = std::abs(twice) / 2 * METERS_PER_DEGREE *
                            metresPerDegreeEast(corner.y) / kSquareMetresPerHectare;
    EXPECT_THAT(job.cover().figures.net, IsHectares(hectares));
}

TEST(Coverage, TellsGroundWithoutProductAndTwoFieldsFarApart) {
    Job job;
    job.rows({0});
    job.drive({{0, 40}, {500, 40}}, 0);
    job.drive({{90'000, 90'000}, {90'500, 90'000}});
    const Coverage coverage = job.cover();
    EXPECT_THAT(coverage.figures.dosed, IsHectares(2));
    EXPECT_THAT(coverage.figures.undosed, IsHectares(1));
    EXPECT_THAT(coverage.figures.net, IsHectares(2));
    EXPECT_LT(coverage.grid.tiles().size(), 200U);
}

TEST(Coverage, OfNothingIsNothing) {
    const CoverageFigures none = Job().cover({box(0, 0, 100, 100)}).figures;
    EXPECT_EQ(none.net, 0);
    EXPECT_THAT(none.skipped, testing::Optional(IsHectares(1)));
    Job job;
    job.drive({{0, 0}, {0, 0}});
    EXPECT_EQ(job.cover().figures.skipped, std::nullopt);
}

}  // namespace
}  // namespace campora
