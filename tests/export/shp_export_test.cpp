// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/shp_export.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "presc/shape_reader.h"
#include "support/exported_layers.h"
#include "support/hex_bytes.h"
#include "support/temp_folder.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

using Column = AttributeLayer::Column;

constexpr Date kToday{2026, 11, 3};

std::int64_t whole(std::int64_t value) {
    return value;
}

struct ShpTest : testing::Test {
    std::optional<Failure> polygons(const std::vector<Gph*>& layers) {
        return exportShpPolygons(layers, base, style, progress);
    }
    std::optional<Failure> points(const std::vector<Gph*>& layers) {
        return exportShpPoints(layers, base, progress);
    }
    std::optional<Failure> gis(const std::vector<Gph*>& layers) {
        return exportShpGis(layers, base, {style}, kToday, progress);
    }
    [[nodiscard]] std::string content(const char* ending) const { return contentOf(base + ending); }
    /// The table without its header.
    [[nodiscard]] std::string records(std::size_t fields) const {
        return content(".dbf").substr(33 + 32 * fields);
    }
    [[nodiscard]] std::size_t fileCount() const {
        const std::filesystem::directory_iterator entries(nativePath(folder.path()));
        return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
    }

    TempFolder folder;
    std::string base = folder.file("campo");
    MapStyle style;
    NoProgress silent;
    ExportProgress progress{silent};
};

TEST_F(ShpTest, PolygonsByteForByte) {
    // An open triangle and a closed one, against the clock; nothing in between.
    AttributeLayer layer({{{1, 2}, {3, 2}, {1, 4}}, {}, {{0, 0}, {1, 0}, {0, 1}, {0, 0}}}, {});
    ASSERT_EQ(polygons({&layer}), std::nullopt);
    const std::string box = hexBytes(R"(
        00 00 00 00 00 00 F0 BF  00 00 00 00 00 00 F0 BF
        00 00 00 00 00 00 10 40  00 00 00 00 00 00 14 40)");  // -1 -1 4 5
    const std::string noBox(32, '\0');
    const std::string head = hexBytes(R"(
        00 00 27 0A  00 00 00 00  00 00 00 00  00 00 00 00  00 00 00 00  00 00 00 00)");
    const std::string type = hexBytes("E8 03 00 00  05 00 00 00");
    EXPECT_EQ(content(".shp"), head + hexBytes("00 00 00 A2") + type + box + noBox + hexBytes(R"(
        00 00 00 01  00 00 00 30
        05 00 00 00
        00 00 00 00 00 00 F0 3F  00 00 00 00 00 00 00 40
        00 00 00 00 00 00 08 40  00 00 00 00 00 00 10 40
        01 00 00 00  03 00 00 00  00 00 00 00
        00 00 00 00 00 00 F0 3F  00 00 00 00 00 00 00 40
        00 00 00 00 00 00 08 40  00 00 00 00 00 00 00 40
        00 00 00 00 00 00 F0 3F  00 00 00 00 00 00 10 40
        00 00 00 02  00 00 00 38
        05 00 00 00
        00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00
        00 00 00 00 00 00 F0 3F  00 00 00 00 00 00 F0 3F
        01 00 00 00  04 00 00 00  00 00 00 00
        00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00
        00 00 00 00 00 00 F0 3F  00 00 00 00 00 00 00 00
        00 00 00 00 00 00 00 00  00 00 00 00 00 00 F0 3F
        00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00)"));
    EXPECT_EQ(content(".shx"), head + hexBytes("00 00 00 3A") + type + box + noBox + hexBytes(R"(
        00 00 00 32  00 00 00 30
        00 00 00 66  00 00 00 38)"));
    EXPECT_EQ(records(1), " 0     2    ") << "the number in its layer";
    EXPECT_EQ(content(".cpg"), "1252");
    EXPECT_TRUE(content(".prj").starts_with("GEOGCS[\"GCS_WGS_1984\",DATUM["));
}

TEST_F(ShpTest, PointsByteForByte) {
    AttributeLayer first({squareAt(1, 2), squareAt(-3, 4)}, {});
    AttributeLayer second({squareAt(5, 6)}, {});
    ASSERT_EQ(points({&first, &second}), std::nullopt);
    const std::string shapes = content(".shp");
    ASSERT_EQ(shapes.size(), 184U);
    EXPECT_EQ(shapes.substr(24, 12), hexBytes("00 00 00 5C E8 03 00 00 01 00 00 00"));
    EXPECT_EQ(shapes.substr(100), hexBytes(R"(
        00 00 00 01  00 00 00 0A  01 00 00 00
            00 00 00 00 00 00 F0 3F  00 00 00 00 00 00 00 40
        00 00 00 02  00 00 00 0A  01 00 00 00
            00 00 00 00 00 00 08 C0  00 00 00 00 00 00 10 40
        00 00 00 03  00 00 00 0A  01 00 00 00
            00 00 00 00 00 00 14 40  00 00 00 00 00 00 18 40)"));
    EXPECT_EQ(content(".shx").substr(100), hexBytes(R"(
        00 00 00 32 00 00 00 0A  00 00 00 40 00 00 00 0A  00 00 00 4E 00 00 00 0A)"));
    EXPECT_EQ(records(1), " 0     1     0    ") << "from 0 in every layer";
}

TEST_F(ShpTest, CellsByTheTypeOfTheirColumn) {
    const std::tuple<const char*, ColumnType, CellValue, const char*, const char*> rows[] = {
        {"tie to even", ColumnType::Integer, 2.5F, "2     ", "          2.500"},
        {"rounded", ColumnType::Real, 0.0005, "0.001          ", "          0.001"},
        {"whole number in a real column", ColumnType::Real, whole(4294967295), "4294967295.000 ",
         " 4294967295.000"},
        {"text", ColumnType::Text, std::string("Ca\u00f1 a"), "Ca\xF1 a     ", "Ca\xF1 a     "},
        {"date", ColumnType::Date, Date{2018, 3, 5}, "20180305", "20180305"},
    };
    for (const auto& [name, type, cell, plain, ofGis] : rows) {
        SCOPED_TRACE(name);
        AttributeLayer layer({squareAt(0, 0)}, {{"c", type, {cell}}});
        ASSERT_EQ(polygons({&layer}), std::nullopt);
        EXPECT_EQ(records(1), std::string(" ") + plain);
        ASSERT_EQ(gis({&layer}), std::nullopt);
        EXPECT_EQ(records(1), std::string(" ") + ofGis);
    }
}

TEST_F(ShpTest, ColumnsOfLayersThatDiffer) {
    AttributeLayer one({squareAt(0, 0)}, {{"A", ColumnType::Integer, {whole(1)}},
                                          {"B", ColumnType::Integer, {whole(2)}}});
    AttributeLayer two({squareAt(5, 0)}, {{"B", ColumnType::Integer, {whole(3)}},
                                          {"C", ColumnType::Integer, {whole(4)}}});
    AttributeLayer none({squareAt(9, 0)}, {});
    AttributeLayer empty({}, {});
    ASSERT_EQ(polygons({&one, &empty, &two}), std::nullopt);
    EXPECT_EQ(records(2), " 1     2     "
                          "       3     ")
        << "those of the first, found by name";
    ASSERT_EQ(gis({&one, &empty, &two}), std::nullopt);
    EXPECT_EQ(records(3), "      1     2      "
                          "            3     4")
        << "all of them";
    ASSERT_EQ(polygons({&one, &none}), std::nullopt);
    EXPECT_EQ(records(1), " 0     0    ") << "a layer without columns leaves the number alone";
}

TEST_F(ShpTest, StepsWithoutFlowFollowTheStyle) {
    GphTrack track;
    for (int i = 0; i < 4; ++i) {
        const LonLat at = atMetres(10 * i, 0);
        track.addPoint(at.x, at.y, loggerRecord(i == 1 ? 0.0F : 5.0F));
    }
    ASSERT_EQ(polygons({&track}), std::nullopt);
    EXPECT_EQ(content(".shx").size(), 124U);
    style.drawAll = false;
    ASSERT_EQ(polygons({&track}), std::nullopt);
    ShapeReader reader;
    ASSERT_EQ(reader.open(base + ".shp"), std::nullopt);
    EXPECT_EQ(reader.recordCount(), 2);
    EXPECT_EQ(reader.fieldNumber(1), 5);
}

TEST_F(ShpTest, GisRingsAreClosedClockwiseAndWithoutCrossings) {
    AttributeLayer layer({squareAt(0, 0), {{0, 0}, {2, 2}, {2, 0}, {0, 2}}, {{0, 0}, {1, 1}}},
                         {{"n", ColumnType::Integer, {whole(0), whole(1), whole(2)}}});
    ASSERT_EQ(gis({&layer}), std::nullopt);
    const std::string shapes = content(".shp");
    EXPECT_EQ(shapes.substr(36, 32), hexBytes(R"(
        00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00
        00 00 00 00 00 00 00 40  00 00 00 00 00 00 00 40)"))
        << "what the polygons cover";
    ShapeReader reader;
    ASSERT_EQ(reader.open(base + ".shp"), std::nullopt);
    ASSERT_EQ(reader.recordCount(), 2) << "what has no area is left out with its row";
    EXPECT_EQ(reader.vertex(1), (LonLat{0, 1})) << "clockwise";
    EXPECT_EQ(reader.vertex(4), (LonLat{0, 0})) << "closed";
    reader.moveNext();
    EXPECT_EQ(reader.partCount(), 2) << "a bow tie is two triangles";
    EXPECT_FALSE(reader.partIsHole(1) || reader.partIsHole(2));
    EXPECT_EQ(reader.fieldNumber(1), 1);
}

TEST_F(ShpTest, GisColumnsAreWideEnoughForEveryCell) {
    AttributeLayer layer(
        {squareAt(0, 0), squareAt(5, 0)},
        {{"i", ColumnType::Integer, {whole(-123456789), whole(1)}},
         {"r", ColumnType::Real, {1.0F, 1e20}},
         {"t", ColumnType::Text, {std::string("una, nota larga"), std::string("x")}}});
    ASSERT_EQ(gis({&layer}), std::nullopt);
    EXPECT_EQ(records(3), " -123456789"
                          "                    1.000"
                          "una, nota larga"
                          "          1"
                          "100000000000000000000.000"
                          "x              ");
    AttributeLayer beyond({squareAt(0, 0)}, {{"r", ColumnType::Real, {1e300}}});
    const auto failure = gis({&beyond});
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->cause.at(0).text, TextId::CellDoesNotFit);
    EXPECT_EQ(failure->cause.at(0).arguments.at(0), "r");
}

TEST_F(ShpTest, AnIntegerBeyond16BitsIsRefusedInThePlainForm) {
    for (const std::int64_t value : {32768, -32769}) {
        AttributeLayer layer({squareAt(0, 0)}, {{"Dosis", ColumnType::Integer, {value}}});
        const auto failure = polygons({&layer});
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->arguments, std::vector{base + ".dbf"});
        EXPECT_EQ(failure->cause.at(0).text, TextId::CellDoesNotFit);
        EXPECT_EQ(fileCount(), 0U);
    }
}

TEST_F(ShpTest, ExistingFilesAreReplacedTogetherOrNotAtAll) {
    AttributeLayer layer({squareAt(0, 0)}, {});
    (void)folder.write("campo.shp", "old");
    (void)folder.write("campo.prj", "old");
    (void)folder.write("campo.qix", "index of the old figures");
    ASSERT_EQ(polygons({&layer}), std::nullopt);
    EXPECT_EQ(fileCount(), 5U) << "an index of what is gone misleads";
    EXPECT_NE(content(".shp"), "old");
    EXPECT_NE(content(".prj"), "old");
    std::filesystem::remove(nativePath(base + ".dbf"));
    std::filesystem::create_directory(nativePath(base + ".dbf"));
    (void)folder.write("campo.qix", "index");
    EXPECT_TRUE(polygons({&layer}).has_value());
    EXPECT_EQ(content(".qix"), "index");
}

}  // namespace
}  // namespace campora
