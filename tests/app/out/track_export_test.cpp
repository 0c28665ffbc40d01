// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/track_export.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "model/file_gph_group.h"
#include "presc/shape_reader.h"
#include "support/temp_folder.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

/// Eastward passes of points 10 m apart, one 100 m north of the other, with these flows.
FileGphGroup work(const std::vector<std::vector<float>>& passes) {
    FileGphGroup group;
    for (std::size_t pass = 0; pass < passes.size(); ++pass) {
        auto track = std::make_unique<GphTrack>();
        for (std::size_t i = 0; i < passes[pass].size(); ++i) {
            const LonLat at =
                atMetres(10 * static_cast<double>(i), 100 * static_cast<double>(pass));
            track->addPoint(at.x, at.y, loggerRecord(passes[pass][i], 200, 20));
        }
        group.addGph(std::move(track));
    }
    return group;
}

struct TrackExportTest : testing::Test {
    /// Points of every ring and flow of every record: "5:100 5:90".
    std::string exported(const std::vector<std::vector<float>>& passes,
                         const TrackExportOptions& options) {
        EXPECT_EQ(exportTrack(work(passes), base, options), std::nullopt);
        ShapeReader reader;
        EXPECT_EQ(reader.open(base + ".shp"), std::nullopt);
        std::string text;
        for (reader.moveFirst(); reader.record() <= reader.recordCount(); reader.moveNext()) {
            EXPECT_EQ(reader.partCount(), 1);
            text += (text.empty() ? "" : " ") + numberText(reader.partLastVertex(1) + 1) + ":" +
                    numberText(reader.fieldNumber(2).value_or(-1));
        }
        return text;
    }

    TempFolder folder;
    std::string base = folder.file("log0105");
};

TEST_F(TrackExportTest, EveryPassHasPolygonsOfItsOwn) {
    EXPECT_EQ(exported({{10, 20, 30, 40}, {50, 60}}, {}), "9:20 5:50");
    EXPECT_EQ(exported({{10, 20, 30, 40}, {50, 60}}, {2, false}), "7:15 5:30 5:50");
    EXPECT_EQ(exported({{7}, {10, 20}}, {}), "5:10") << "a lone point gives none";
}

TEST_F(TrackExportTest, OnlySprayedLeavesOutTheStops) {
    EXPECT_EQ(exported({{10, 0, 0, 40, 50}}, {}), "11:12");
    EXPECT_EQ(exported({{10, 0, 0, 40, 50}}, {10, true}), "5:10 5:40");
}

TEST_F(TrackExportTest, AWorkWithoutPolygonsIsAFailureAndLeavesNoFile) {
    for (const auto& passes : {std::vector<std::vector<float>>{}, {{5}}, {{0, 0}, {0}}}) {
        const auto failure = exportTrack(work(passes), base, {10, true});
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->text, TextId::WorkWithoutSwaths);
    }
    const auto failure = exportTrack(work({{5, 5}}), folder.file("none/log"), {});
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->cause.at(0).text, TextId::FolderNotFound);
    EXPECT_TRUE(std::filesystem::is_empty(nativePath(folder.path())));
}

}  // namespace
}  // namespace campora
