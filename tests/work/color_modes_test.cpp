// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/color_modes.h"

#include <memory>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "base/dates.h"
#include "model/file_gph_group.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

/// Open files, and the scale that is set up for them.
struct Fixture {
    template <typename Record>
    void addFile(const std::vector<Record>& records) {
        auto track = std::make_unique<GphTrack>();
        for (const Record& record : records) {
            const LonLat at = atMetres(10.0 * static_cast<double>(++points), 1);
            track->addPoint(at.x, at.y, record);
        }
        auto group = std::make_unique<FileGphGroup>();
        group->addGph(std::move(track));
        files.push_back(group.get());
        owned.push_back(std::move(group));
    }
    void addDays(const std::vector<std::int32_t>& days) {
        std::vector<TrackDataRPT> records;
        for (const std::int32_t day : days) {
            TrackDataRPT::Fields fields = reportFields(100);
            fields.date = dateOfDayNumber(day);
            records.emplace_back(fields);
        }
        addFile(records);
    }
    void setUp() { setUpColorScale(scale, style, ranges, files); }

    [[nodiscard]] std::vector<std::pair<double, double>> bounds() const {
        std::vector<std::pair<double, double>> all;
        for (const Clase& clase : scale.classes()) {
            all.emplace_back(clase.lower, clase.upper);
        }
        return all;
    }

    ColorScale scale;
    MapStyle style;
    ValueRanges ranges;
    std::vector<File*> files;
    std::vector<std::unique_ptr<FileGphGroup>> owned;
    int points = 0;
};

using Bounds = std::vector<std::pair<double, double>>;

TEST(ColorModes, DoseClassesCoverWhatIsLoaded) {
    using By = GraduatedBy;
    const std::optional flow = ValueRange<float>{5, 25};
    const std::optional litres = ValueRange<float>{1, 9};
    const std::optional dose = ValueRange<float>{50, 250};
    const std::tuple<const char*, By, ValueRanges, int, double, double> rows[] = {
        {"both", By::Hectare, {flow, litres, dose, {}}, 5, 1, 250},
        {"track files by minute", By::Minute, {flow, litres, {}, {}}, 5, 5, 25},
        {"without speed", By::Hectare, {flow, ValueRange<float>{}, {}, {}}, 1, 0, 0},
        {"nothing: the classes stay", By::Hectare, {}, 6, 0, 100},
    };
    for (const auto& [name, by, ranges, classes, least, greatest] : rows) {
        SCOPED_TRACE(name);
        Fixture f;
        f.style.by = by;
        f.ranges = ranges;
        f.setUp();
        EXPECT_EQ(f.scale.count(), classes);
        EXPECT_EQ(f.scale.classes().front().lower, least);
        EXPECT_EQ(f.scale.classes().back().upper, greatest);
        f.style.mode = ColorMode::Error;
        f.ranges.dose = {0, 9999};
        f.setUp();
        EXPECT_EQ(f.scale.classes().back().upper, greatest) << "kept while it shows errors";
    }
}

struct ColorModesTest : testing::Test, Fixture {};

TEST_F(ColorModesTest, ASelectedChannelHasItsOwnRange) {
    std::vector<TrackDataRPT> records;
    for (const std::int32_t second : {70, 30, 5000, 40}) {
        TrackDataRPT::Fields fields = reportFields(900);
        fields.channels = 2;
        fields.real[1] = second;
        records.emplace_back(fields);
    }
    addFile(records);
    addFile(std::vector{reportRecord(1)});  // has no second channel
    ranges.dose = {1, 970};
    style.selectedChannel = 1;
    setUp();
    EXPECT_EQ(scale.valueMin(), 30);
    EXPECT_EQ(scale.valueMax(), 70);  // 5000 and more are faults of measurement
    style.selectedChannel = 2;
    setUp();
    EXPECT_EQ(scale.valueMax(), 70) << "no record has a third channel: the classes stay";
}

TEST_F(ColorModesTest, ADateMapHasAClassADay) {
    style.mode = ColorMode::Date;
    scale.unit = "lt/hect";
    addDays({43102, 43102, 43100, 43102});
    addDays({43105});
    addFile(std::vector{reportRecord(7), reportRecord(8)});  // without a date
    setUp();
    EXPECT_EQ(bounds(), (Bounds{{43100, 43100}, {43102, 43102}, {43105, 43105}}));
    EXPECT_TRUE(scale.isDate);
    EXPECT_FALSE(scale.allowClassEdit);
    EXPECT_EQ(scale.unit, "");
    style.mode = ColorMode::Dose;
    setUp();
    EXPECT_FALSE(scale.isDate);
}

TEST(ColorModes, ManyDaysShareTwelveClasses) {
    for (const std::int32_t count : {12, 13, 40}) {
        SCOPED_TRACE(count);
        Fixture f;
        f.style.mode = ColorMode::Date;
        std::vector<std::int32_t> days;
        for (std::int32_t i = 0; i < count; ++i) {
            days.push_back(43000 + 2 * i);
        }
        f.addDays(days);
        f.setUp();
        EXPECT_EQ(f.scale.count(), 12);
        EXPECT_EQ(f.scale.getClass(0).lower == f.scale.getClass(0).upper, count == 12);
        EXPECT_EQ(f.scale.classes().front().lower, 43000);
        EXPECT_NEAR(f.scale.classes().back().upper, 43000 + 2 * (count - 1), 1e-6);
    }
}

}  // namespace
}  // namespace campora
