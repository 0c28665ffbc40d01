// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What every writer of layers promises about the files that stand where it writes.

#include <filesystem>

#include <gtest/gtest.h>

#include "export/geojson_export.h"
#include "export/kml_export.h"
#include "export/shp_export.h"
#include "export/txt_export.h"
#include "support/exported_layers.h"
#include "support/file_size_limit.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

using Layers = std::vector<const Gph*>;

enum class Kind { Polygons, Points, Gis, GeoJson, Kml, Text };

struct Format {
    Kind kind;
    /// Of a file that it writes, whose name is told when it cannot.
    const char* ending;
    TextId nothing;
    /// Layers without anything for it, beside those that have nothing for any.
    Layers without;
};

struct EveryFormat : testing::Test {
    EveryFormat() {
        style.drawAll = false;
        idle.addPoint(0, 0, reportRecord(0));
        idle.addPoint(1e-4, 0, reportRecord(0));
    }
    std::optional<Failure> write(const Format& format, const Layers& layers,
                                 Progress& shown) const {
        ExportProgress progress(shown);
        switch (format.kind) {
        case Kind::Polygons:
            return exportShpPolygons(layers, base, style, progress);
        case Kind::Points:
            return exportShpPoints(layers, base, progress);
        case Kind::Gis:
            return exportShpGis(layers, base, {style}, {2026, 11, 3}, progress);
        case Kind::GeoJson:
            return exportGeoJson(layers, base + ".geojson", {style}, progress);
        case Kind::Kml:
            return kmlExport(layers, base + ".kml", CAMPORA_SOURCE_DIR "/data", style, progress);
        case Kind::Text:
            break;
        }
        return txtExport(layers, base + ".txt", {}, FixedLocale(), progress);
    }
    [[nodiscard]] std::size_t fileCount() const {
        const std::filesystem::directory_iterator entries(nativePath(folder.path()));
        return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
    }

    TempFolder folder;
    std::string base = folder.file("campo");
    MapStyle style;
    NoProgress silent;
    NamedLayer picture{""};
    AttributeLayer empty{{}, {}};
    AttributeLayer hollow{{{}, {}}, {}};
    AttributeLayer line{{{{0, 0}, {1, 1}}}, {}};
    RingLayer rings{{squareAt(0, 0)}};
    PointLayer points{{{7, 8}}};
    GphTrack idle;
    AttributeLayer figures{std::vector<RingLayer::Ring>(2000, squareAt(0, 0)), {}};
    const Format formats[6] = {
        {Kind::Polygons, ".dbf", TextId::NoPolygonsToExport, {&points, &hollow, &idle}},
        {Kind::Points, ".dbf", TextId::NoPointsToExport, {&rings}},
        {Kind::Gis, ".dbf", TextId::NothingToExportGis, {&line}},
        {Kind::GeoJson, ".geojson", TextId::NothingToExportGis, {&line}},
        {Kind::Kml, ".kml", TextId::NoPolygonsToExport, {&points, &hollow, &idle}},
        {Kind::Text, ".txt", TextId::NoPointsToExport, {&rings}},
    };
};

TEST_F(EveryFormat, NothingToWriteIsAFailureAndLeavesNoFile) {
    for (const Format& format : formats) {
        std::vector<Layers> rows{{}, {&picture}, {&empty}};
        for (const Gph* const layer : format.without) {
            rows.push_back({layer});
        }
        for (const Layers& layers : rows) {
            const auto failure = write(format, layers, silent);
            ASSERT_TRUE(failure.has_value()) << format.ending;
            EXPECT_EQ(failure->text, format.nothing) << format.ending;
        }
        EXPECT_EQ(fileCount(), 0U);
    }
}

TEST_F(EveryFormat, WhatIsCancelledOrCannotBeWrittenLeavesTheOldFile) {
    for (const Format& format : formats) {
        SCOPED_TRACE(format.ending);
        const std::string old = folder.write("campo" + std::string(format.ending), "old");
        CancellingProgress enough;
        EXPECT_EQ(write(format, {&figures}, enough), std::nullopt);
#ifndef _WIN32
        std::optional<Failure> tooLarge;
        {
            const FileSizeLimit limit(10000);
            tooLarge = write(format, {&figures}, silent);
        }
        ASSERT_TRUE(tooLarge.has_value());
        EXPECT_EQ(tooLarge->cause.at(0).text, TextId::FileTooLarge);
#endif
        EXPECT_EQ(contentOf(old), "old");
        EXPECT_EQ(fileCount(), 1U);
        std::filesystem::remove(nativePath(old));
        std::filesystem::create_directory(nativePath(old));
        const auto failure = write(format, {&figures}, silent);
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->arguments, std::vector{old});
        EXPECT_EQ(failure->cause.at(0).text, TextId::FileIsFolder);
        EXPECT_EQ(fileCount(), 1U);
        std::filesystem::remove(nativePath(old));
    }
}

}  // namespace
}  // namespace campora
