// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/dbase_view.h"

#include <gtest/gtest.h>

#include "base/texts.h"
#include "support/failures.h"
#include "support/shape_bytes.h"

namespace campora {
namespace {

const CellValue kEmpty;

TEST(DbaseView, ReadsCellsByTheTypeOfTheirColumn) {
    const std::tuple<const char*, char, std::string, CellValue, std::optional<double>> rows[] = {
        {"number", 'N', "12.50", 12.5, 12.5},
        {"exponent, as F columns have it", 'F', "1.25e+002", 125.0, 125},
        {"a comma", 'N', "1,5", kEmpty, {}},
        {"digits before the point only", 'C', "5.", std::string("5."), 5},
        {"text that is a number", 'C', "  72.5", std::string("72.5"), 72.5},
        {"text that begins with one", 'C', "72.5 kg", std::string("72.5 kg"), {}},
        {"Windows-1252", 'C', "Ni\xF1o \x80", std::string("Niño €"), {}},
        {"date", 'D', "20240229", Date{2024, 2, 29}, {}},
        {"no such day", 'D', "20230229", kEmpty, {}},
        {"logical", 'L', "T", std::string("T"), {}},
        {"logical, unset", 'L', "?", kEmpty, {}},
    };
    for (const auto& [name, type, cell, value, number] : rows) {
        SCOPED_TRACE(name);
        DbaseBytes table({{"A", 'C', 3}, {"B", type, 10}});
        table.addRow({"xyz", cell});
        const std::string bytes = table.bytes();
        const DbaseView file(bytesOf(bytes));
        EXPECT_EQ(file.value(0, 1), value);
        EXPECT_EQ(file.number(0, 1), number);
        EXPECT_EQ(file.value(0, 0), CellValue(std::string("xyz")));
    }
}

TEST(DbaseView, ReadsTextsInTheirCodePage) {
    const std::tuple<const char*, std::string, int, std::string, std::string> rows[] = {
        {"nothing said", "", 0, "A\xF1o", "Año"},
        {"UTF-8 by the file beside it", "UTF-8\r\n", 0x57, "A\xC3\xB1o", "Año"},
        {"by number, with a mark", "\uFEFF65001", 0, "A\xC3\xB1o", "Año"},
        {"not UTF-8 after all", "utf8", 0, "A\xF1o", "Año"},
        {"the file goes before the byte", "cp850", 0x57, "A\xA4o", "Año"},
    };
    for (const auto& [name, cpg, language, cell, text] : rows) {
        SCOPED_TRACE(name);
        DbaseBytes table({{cell, 'C', 10}}, language);
        table.addRow({cell});
        const std::string bytes = table.bytes();
        const DbaseView file(bytesOf(bytes), cpg);
        EXPECT_EQ(file.fieldName(0), text);
        EXPECT_EQ(file.value(0, 0), CellValue(text));
    }
}

/// What the user reads about the table; empty when it is taken.
std::string fault(const std::string& bytes) {
    const std::optional<Failure> failure =
        failureOf([&bytes] { return DbaseView(bytesOf(bytes)).fieldCount(); });
    return failure ? Texts(Language::English).sentence(*failure) : std::string();
}

TEST(DbaseView, SaysWhatIsWrong) {
    DbaseBytes table({{"A", 'N', 4}, {"B", 'D', 8}, {"C", 'L', 1}});
    table.addRow({"1", "20240101", "T"});
    table.addRow({"2", "20240102", "F"});
    const std::string good = table.bytes();
    const auto with = [&](std::size_t at, const std::string& change) {
        return std::string(good).replace(at, change.size(), change);
    };
    const std::string damaged = "the header of the table is damaged, at byte ";
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"sound", good, ""},
        {"empty", "", "it is not a dBASE table"},
        {"a cut header", good.substr(0, 100), "it is cut short at byte 100"},
        {"rows without bytes", with(10, {"\0\0", 2}), damaged + "10"},
        {"columns wider than the row", with(32 + 16, "\xFF"), damaged + "48"},
        {"without columns", with(32, "\r"), ""},
    };
    for (const auto& [name, bytes, message] : rows) {
        EXPECT_EQ(fault(bytes), message) << name;
    }
    for (std::size_t size = 0; size < good.size(); ++size) {
        EXPECT_EQ(fault(good.substr(0, size)).empty(), size >= 129) << size;
    }
}

}  // namespace
}  // namespace campora
