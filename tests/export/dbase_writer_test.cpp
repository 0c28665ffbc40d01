// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/dbase_writer.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "support/hex_bytes.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

constexpr Date kToday{2026, 11, 3};

struct DbfTest : testing::Test {
    /// The file's bytes behind its header of one field; the test fails when it is not that long.
    std::string recordsOf(DbaseWriter& table) {
        EXPECT_EQ(table.closeDBF(), std::nullopt);
        const std::string bytes = contentOf(path);
        EXPECT_GE(bytes.size(), 65U);
        return bytes.substr(std::min<std::size_t>(bytes.size(), 65));
    }

    TempFolder folder;
    std::string base = folder.file("tabla");
    std::string path = base + ".dbf";
};

TEST_F(DbfTest, WholeFileByteForByte) {
    DbaseWriter table;
    EXPECT_EQ(table.addField("id", DbaseType::Numeric, 5, 0), 1);
    EXPECT_EQ(table.addField("Descripci\u00f3n larga", DbaseType::Character, 10, 3), 2);
    EXPECT_EQ(table.addField("Fecha", DbaseType::Date, 4, 1), 3);
    EXPECT_EQ(table.addField("Dosis", DbaseType::Numeric, 15, 3), 4);
    ASSERT_EQ(table.createDBF(base), std::nullopt);
    table.recordField(1, std::int64_t{7});
    table.recordField(2, std::string("Ca\u00f1ada"));
    table.recordField(3, Date{2011, 3, 5});
    table.recordField(4, std::string("12,5"));
    table.writeRecord();
    EXPECT_EQ(table.recordCount(), 1);
    ASSERT_EQ(table.closeDBF(), std::nullopt);
    EXPECT_EQ(contentOf(path), hexBytes(R"(
        03 63 01 1E  01 00 00 00  A1 00  27 00  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
                                                00 00 00 00
        'id' 00 00 00 00 00 00 00 00 00  'N'  00 00 00 00  05 00
                                                00 00 00 00 00 00 00 00 00 00 00 00 00 00
        'Descripci' F3 'n'  'C'  00 00 00 00  0A 0A
                                                00 00 00 00 00 00 00 00 00 00 00 00 00 00
        'Fecha' 00 00 00 00 00 00  'D'  00 00 00 00  08 08
                                                00 00 00 00 00 00 00 00 00 00 00 00 00 00
        'Dosis' 00 00 00 00 00 00  'N'  00 00 00 00  0F 03
                                                00 00 00 00 00 00 00 00 00 00 00 00 00 00
        0D
        ' ' '7    ' 'Ca' F1 'ada    ' '20110305' '12.5           ')"));
}

TEST_F(DbfTest, ValuesByTheTypeOfTheirField) {
    const std::tuple<const char*, DbaseType, CellValue, const char*, const char*> rows[] = {
        {"decimal comma", DbaseType::Numeric, std::string("1,25"), "1.25    ", "    1.25"},
        {"too long", DbaseType::Numeric, std::string("123456789"), "12345678", "12345678"},
        {"text that fills the field", DbaseType::Character, std::string("a,b.c,de"), "a.b.c.de",
         "a,b.c,de"},
        {"letters that the code page lacks", DbaseType::Character, std::string("\u4e2d\u20ac"),
         "?\x80      ", "?\x80      "},
        {"date", DbaseType::Date, Date{2011, 3, 5}, "20110305", "20110305"},
        {"day before the first", DbaseType::Date, Date{2011, 3, 0}, "20110228", "20110228"},
        {"date by its number", DbaseType::Date, std::int64_t{40607}, "20110305", "20110305"},
        {"text for a date", DbaseType::Date, std::string("ayer"), "        ", "        "},
    };
    for (const auto& [name, type, value, plain, gis] : rows) {
        SCOPED_TRACE(name);
        for (const bool forGis : {false, true}) {
            DbaseWriter table(forGis ? std::optional(kToday) : std::nullopt);
            table.addField("c", type, 8, 2);
            ASSERT_EQ(table.createDBF(base), std::nullopt);
            table.recordField(1, value);
            table.writeRecord();
            EXPECT_EQ(recordsOf(table), std::string(" ") + (forGis ? gis : plain));
            EXPECT_EQ(contentOf(path).substr(1, 3), hexBytes(forGis ? "7E 0B 03" : "63 01 1E"));
        }
    }
}

TEST_F(DbfTest, AFieldThatIsNotSetRepeatsItsValue) {
    DbaseWriter table;
    table.addField("c", DbaseType::Character, 3, 0);
    ASSERT_EQ(table.createDBF(base), std::nullopt);
    table.recordField(0, std::string("xxx"));
    table.recordField(-1, std::string("xxx"));
    table.writeRecord();
    table.recordField(1, std::string("abc"));
    table.writeRecord();
    table.writeRecord();
    table.recordField(1, std::string("d"));
    table.writeRecord();
    EXPECT_THROW(table.recordField(2, std::string("x")), std::out_of_range);
    EXPECT_EQ(recordsOf(table), "     abc abc d  ");
}

TEST_F(DbfTest, WhatTheHeaderCannotCountIsRefused) {
    (void)folder.write("tabla.dbf", "old");
    // The longest record, of 65,279 bytes, and the most fields; one more of each is refused.
    const std::tuple<int, int, bool> rows[] = {
        {257, 254, true}, {259, 254, false}, {2046, 1, true}, {2047, 1, false}};
    for (const auto& [fields, length, isFine] : rows) {
        DbaseWriter table;
        for (int i = 0; i < fields; ++i) {
            table.addField("c", DbaseType::Character, length, 0);
        }
        const auto failure = table.createDBF(base);
        ASSERT_EQ(!failure, isFine) << fields;
        EXPECT_TRUE(!failure || failure->cause.at(0).text == TextId::TableTooWide);
        EXPECT_EQ(contentOf(path), "old") << "nothing is closed yet";
    }
    DbaseWriter table;
    EXPECT_THROW(table.addField("c", DbaseType::Numeric, 0, 0), std::invalid_argument);
    EXPECT_THROW(table.addField("c", DbaseType::Character, 256, 0), std::invalid_argument);
}

}  // namespace
}  // namespace campora
