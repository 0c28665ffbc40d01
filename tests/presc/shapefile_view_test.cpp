// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/shapefile_view.h"

#include <cmath>

#include <gtest/gtest.h>

#include "base/texts.h"
#include "support/shape_bytes.h"

namespace campora {
namespace {

using Ring = ShapeBytes::Ring;
using Parts = std::vector<ShapePart>;

const Ring kClockwise = {{0, 0}, {0, 9}, {9, 9}, {9, 0}, {0, 0}};
const Ring kAgainst = {{2, 2}, {4, 2}, {4, 4}, {2, 4}, {2, 2}};
const Ring kFlat = {{1, 1}, {2, 2}, {1, 1}};
const Ring kAgainstWide = {{0, 0}, {9, 0}, {9, 9}, {0, 9}, {0, 0}};
const Ring kHoleWithTheClock = {{2, 2}, {2, 4}, {4, 4}, {4, 2}, {2, 2}};
const Ring kApart = {{20, 2}, {24, 2}, {24, 6}, {20, 6}, {20, 2}};  // against the clock
const Ring kIsland = {{21, 3}, {21, 5}, {23, 5}, {23, 3}, {21, 3}};
const Ring kTouching = {{0, 0}, {4, 2}, {2, 4}, {0, 0}};

Parts partsOf(const ShapeView& shape) {
    Parts parts{{7, 7, true}};
    shape.collectParts(parts);
    return parts;
}

/// What the user reads about the file, behind the number of its records when only some are read;
/// empty when it is taken whole.
std::string fault(const std::string& bytes, const std::string& index = {}) {
    const Texts texts(Language::English);
    try {
        const ShapefileView file(bytesOf(bytes), bytesOf(index));
        for (std::int32_t i = 0; i < file.recordCount(); ++i) {
            (void)partsOf(file.shape(i));
        }
        return file.damage() ? std::to_string(file.recordCount()) +
                                   " of it: " + texts.sentence(*file.damage())
                             : "";
    } catch (const FormatError& error) {
        return texts.sentence(error.failure());
    }
}

ShapeBytes twoRecords() {
    ShapeBytes shapes(5);
    shapes.addPolygon({kClockwise, kAgainst});
    shapes.addPolygon({kClockwise});
    return shapes;
}

TEST(ShapefileView, ReadsEveryTypeAndSkipsItsZAndM) {
    const std::pair<std::int32_t, Parts> rows[] = {{1, {{0, 0, false}}},
                                                   {3, {{0, 1, false}, {2, 2, false}}},
                                                   {5, {{0, 1, false}, {2, 2, false}}},
                                                   {8, {{0, 1, false}}}};
    for (const auto& [plain, parts] : rows) {
        for (const int variant : {0, 10, 20}) {
            SCOPED_TRACE(plain + variant);
            ShapeBytes shapes(plain + variant);
            if (plain == 1) {
                shapes.addPoint({-61.5, -33.25}, variant / 10);
            } else if (plain == 8) {
                shapes.addPoints({{-61.5, -33.25}, {1, 2}}, variant);
            } else {
                shapes.addPolygon({{{-61.5, -33.25}, {1, 2}}, {{3, 4}}}, variant);
            }
            shapes.addNull();
            const std::string bytes = shapes.bytes();
            const ShapefileView file(bytesOf(bytes));
            ASSERT_EQ(file.recordCount(), 2);
            const ShapeView shape = file.shape(0);
            EXPECT_EQ(shape.vertex(0), (LonLat{-61.5, -33.25}));
            EXPECT_EQ(partsOf(shape), parts);
            EXPECT_EQ(partsOf(file.shape(1)), Parts());
        }
    }
}

TEST(ShapefileView, HolesRunAgainstTheClockBesideARingThatRunsWithIt) {
    const std::tuple<const char*, std::int32_t, std::vector<Ring>, std::vector<bool>> rows[] = {
        {"a ring without area", 5, {kFlat, kAgainst, kClockwise}, {false, true, false}},
        {"outer and hole turned around", 5, {kAgainstWide, kHoleWithTheClock}, {false, true}},
        {"hole that touches its ring", 5, {kClockwise, kTouching}, {false, true}},
        {"hole round an island and in no ring",
         5,
         {kApart, kIsland, kClockwise},
         {false, false, false}},
        {"lines have none", 3, {kClockwise, kAgainst}, {false, false}},
    };
    for (const auto& [name, type, rings, expected] : rows) {
        ShapeBytes shapes(type);
        shapes.addPolygon(rings);
        const std::string bytes = shapes.bytes();
        std::vector<bool> holes;
        for (const ShapePart& part : partsOf(ShapefileView(bytesOf(bytes)).shape(0))) {
            holes.push_back(part.isHole);
        }
        EXPECT_EQ(holes, expected) << name;
    }
}

TEST(ShapefileView, LeavesOutPartsWithoutVertices) {
    ShapeBytes shapes(5);
    shapes.addPolygon({{}, kClockwise, {}, kAgainst, {}});
    shapes.addPolygon({{}, {}});
    const std::string bytes = shapes.bytes();
    const ShapefileView file(bytesOf(bytes));
    EXPECT_EQ(partsOf(file.shape(0)), (Parts{{0, 4, false}, {5, 9, true}}));
    EXPECT_EQ(partsOf(file.shape(1)), Parts());
}

TEST(ShapefileView, TakesASoundIndexAndDoesWithoutAnyOther) {
    const ShapeBytes shapes = twoRecords();
    const std::string bytes = shapes.bytes();
    std::string reversed = shapes.index();
    const std::string first = reversed.substr(100, 8);
    reversed = reversed.substr(0, 100) + reversed.substr(108) + first;
    const ShapefileView file(bytesOf(bytes), bytesOf(reversed));
    EXPECT_EQ(partsOf(file.shape(0)).size(), 1U) << "the order is that of the index";
    EXPECT_EQ(partsOf(file.shape(1)).size(), 2U);

    const auto broken = [&](std::size_t at, std::int32_t value) {
        std::string index = reversed;
        putBig(index, at, value);
        return index;
    };
    const std::pair<const char*, std::string> rows[] = {
        {"another code", broken(0, 9995)},
        {"a length that lies", broken(24, 54)},
        {"an offset beyond the end", broken(100, 100'000)},
        {"one record twice", reversed.substr(0, 100) + first + first},
    };
    for (const auto& [name, index] : rows) {
        const ShapefileView without(bytesOf(bytes), bytesOf(index));
        ASSERT_EQ(without.recordCount(), 2) << name;
        EXPECT_EQ(partsOf(without.shape(0)).size(), 2U) << name << ": the order of the file";
    }
}

TEST(ShapefileView, ReadsPastALengthThatWasNeverFilledIn) {
    std::string bytes = twoRecords().bytes();
    for (const std::int32_t words : {0, 50, -1}) {
        putBig(bytes, 24, words);
        EXPECT_EQ(ShapefileView(bytesOf(bytes)).recordCount(), 2) << words;
    }
    bytes = twoRecords().bytes() + "whatever";
    EXPECT_EQ(ShapefileView(bytesOf(bytes)).recordCount(), 2);
}

TEST(ShapefileView, SaysWhatIsWrongAndWhere) {
    const ShapeBytes shapes = twoRecords();
    const std::string good = shapes.bytes();
    const std::size_t first = shapes.contentAt(0);
    const std::size_t second = shapes.contentAt(1);
    const auto with = [&](std::size_t at, std::int32_t value) {
        std::string bytes = good;
        putLittle(bytes, at, value);
        return bytes;
    };
    const auto withVertex = [](double x, double y) {
        ShapeBytes one(5);
        one.addPolygon({{{0, 0}, {x, y}, {1, 1}}});
        return one.bytes();
    };
    const auto withContent = [](const std::string& content) {
        ShapeBytes one(5);
        one.add(content);
        return one.bytes();
    };
    const std::string record1 = "0 of it: record 1 is damaged, at byte ";
    const std::string record2 = "1 of it: record 2 is damaged, at byte ";
    const std::string at1 = record1 + std::to_string(first);
    const std::string noNumber = "record 1 has a coordinate that is not a number, at byte 100";
    const std::string geographic =
        ". Save the map in geographic coordinates (longitude and latitude)";
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"sound", good, ""},
        {"empty", "", "it is not a shapefile"},
        {"a cut header", good.substr(0, 40), "it is cut short at byte 40"},
        {"cut between records", good.substr(0, second - 8),
         "1 of it: it is cut short at byte " + std::to_string(second - 8)},
        {"type 31 in the header", with(32, 31), "shape type 31 cannot be read"},
        {"a record of type 20", with(second, 20), "1 of it: shape type 20 cannot be read"},
        {"parts beyond the record", with(first + 36, 1 << 30), at1},
        {"points without parts", with(first + 36, 0), record1 + "100"},
        {"points beyond the record", with(first + 40, 0x7FFFFFFF), at1},
        {"a part beyond the points", with(first + 48, 11), record1 + "100"},
        {"a record beyond the end", with(second - 4, 0x7F), record2 + std::to_string(second - 8)},
        {"a point of no coordinates", withContent(std::string("\1\0\0\0", 4)), at1},
        {"a set of points, cut",
         withContent("\x8" + std::string(35, '\0') + std::string("\1\0\0\0", 4)), at1},
        {"not a number", withVertex(std::nan(""), 0), noNumber},
        {"metres", withVertex(5'456'000.5, 6'298'000),
         "the coordinates are not degrees (5456000.5, 6298000 in record 1)" + geographic},
        {"the corner of the world", withVertex(-180, -90), ""},
    };
    for (const auto& [name, bytes, message] : rows) {
        EXPECT_EQ(fault(bytes), message) << name;
    }
}

}  // namespace
}  // namespace campora
