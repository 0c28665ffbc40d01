// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/shape_reader.h"

#include <gtest/gtest.h>

#include "base/texts.h"
#include "support/zone_map.h"

namespace campora {
namespace {

ShapeBytes threeZones() {
    ShapeBytes shapes(5);
    shapes.addPolygon({squareAt({0, 0}, 4), holeAt({1, 1}, 1)});
    shapes.addNull();
    shapes.addPolygon({squareAt({5, 5}, 1)});
    return shapes;
}

DbaseBytes doses(int rows) {
    DbaseBytes table({{"DOSIS", 'N', 8}, {"NOMBRE", 'C', 10}});
    for (int i = 1; i <= rows; ++i) {
        table.addRow({std::to_string(10 * i), "zona " + std::to_string(i)});
    }
    return table;
}

std::string sentence(const std::optional<Failure>& failure) {
    return failure ? Texts(Language::English).sentence(*failure) : std::string();
}

TEST(ShapeReader, StepsThroughRecordsWithTheirRows) {
    const TempFolder folder;
    (void)folder.write("zonas.dbf", doses(4).bytes());
    ShapeReader reader;
    EXPECT_EQ(reader.recordCount(), 0);
    ASSERT_EQ(reader.open(folder.write("zonas.shp", threeZones().bytes())), std::nullopt);
    ASSERT_EQ(reader.partCount(), 2);
    EXPECT_EQ(reader.partLastVertex(2), 9);
    EXPECT_EQ(reader.partRingCode(2), 1);
    EXPECT_EQ((LonLat{reader.vertexX(2), reader.vertexY(2)}), reader.vertex(2));
    EXPECT_EQ(reader.fieldName(2), "NOMBRE");
    EXPECT_EQ(reader.fieldValue(2), CellValue(std::string("zona 1")));
    reader.moveNext();
    EXPECT_EQ(reader.partCount(), 0);
    EXPECT_EQ(reader.fieldNumber(1), 20);
    reader.moveTo(3);
    EXPECT_EQ(reader.vertex(0), (LonLat{5, 5}));
    reader.moveNext();
    reader.moveNext();
    EXPECT_EQ(reader.record(), 4);
    EXPECT_EQ(reader.partCount(), 0);
    EXPECT_EQ(reader.fieldValue(1), CellValue()) << "the table's fourth row is no record's";
}

TEST(ShapeReader, ATableOfAnotherLengthOrNone) {
    const TempFolder folder;
    const std::string path = folder.write("a.shp", threeZones().bytes());
    (void)folder.write("a.dbf", doses(1).bytes());
    ShapeReader reader;
    ASSERT_EQ(reader.open(path), std::nullopt);
    EXPECT_EQ(reader.fieldNumber(1), 10);
    reader.moveNext();
    EXPECT_EQ(reader.fieldNumber(1), std::nullopt) << "no row of the table is its own";
    EXPECT_EQ(reader.notes().tableWarning, std::nullopt);
    const std::string beside = folder.write("a.dbf", "");
    ASSERT_EQ(reader.open(path), std::nullopt);
    EXPECT_EQ(sentence(reader.notes().tableWarning),
              "The map is shown without the data of its table. The file " + beside +
                  " cannot be read: it is not a dBASE table");
    EXPECT_EQ(reader.fieldCount(), 0);
    EXPECT_EQ(reader.partCount(), 2);
}

TEST(ShapeReader, KeepsWhatItHadWhenAFileIsRefused) {
    const TempFolder folder;
    ShapeReader reader;
    ASSERT_EQ(reader.open(folder.write("a.shp", threeZones().bytes())), std::nullopt);
    ShapeBytes metres(5);
    metres.addPolygon({squareAt({500'000, 6'000'000}, 10)});
    const std::string path = folder.write("b.shp", metres.bytes());
    EXPECT_EQ(sentence(reader.open(path)),
              "The file " + path +
                  " cannot be read: the coordinates are not degrees (500000, 6000000 in record 1). "
                  "Save the map in geographic coordinates (longitude and latitude)");
    EXPECT_NE(sentence(reader.open(folder.file("none.shp"))).find("none.shp"), std::string::npos);
    EXPECT_EQ(reader.recordCount(), 3);
    EXPECT_EQ(reader.partCount(), 2);
}

}  // namespace
}  // namespace campora
