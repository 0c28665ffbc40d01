// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/number_column.h"

#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

using Number = std::optional<double>;

TEST(NumberColumn, ReadsThousandsAndDecimalsByTheSign) {
    const std::tuple<const char*, Number, Number> rows[] = {
        {"12,5", {}, 12.5},
        {"1.200", 1.2, 1200},
        {"1,200", 1200, 1.2},
        {"1.200,5", {}, 1200.5},
        {"+12,345,678.5", 12345678.5, {}},
        {"0.950", 0.95, {}},
        {"1,2.3", {}, {}},
        {",5", {}, 0.5},
        {"1e3", 1000, 1000},
        {"-", {}, {}},
        {"120 kg/ha", {}, {}},
    };
    for (const auto& [text, point, comma] : rows) {
        EXPECT_EQ(numberInForm(text, DecimalSign::Point), point) << text;
        EXPECT_EQ(numberInForm(text, DecimalSign::Comma), comma) << text;
    }
}

TEST(NumberColumn, IsReadInOneWayInTwoOrInNone) {
    struct Row {
        const char* name;
        std::vector<std::string> cells;
        bool point;
        bool comma;
        bool ambiguous;
        int bad;  ///< record
        int blanks = 0;
        bool isText = true;
    };
    const Row rows[] = {
        {"a point between thousands or decimals", {"950", "1.200"}, true, true, true, 0},
        {"the same in a column of numbers", {"950", "1.200"}, true, false, false, 0, 0, false},
        {"no thousands", {"1.200", "0.5"}, true, false, false, 0},
        {"both signs", {"1.5", "2,5"}, false, false, false, 2},
        {"blanks and stars", {"", "7", "***"}, true, true, false, 0, 2},
        {"nothing but blanks", {"", ""}, false, false, false, 1, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ColumnSurvey survey(row.isText);
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            const bool plain = row.cells[i].find_first_not_of("0123456789.") == std::string::npos;
            survey.add(static_cast<std::int32_t>(i) + 1, row.cells[i],
                       plain && !row.cells[i].empty());
        }
        EXPECT_EQ(survey.fits(DecimalSign::Point), row.point);
        EXPECT_EQ(survey.fits(DecimalSign::Comma), row.comma);
        EXPECT_EQ(survey.ambiguous() != nullptr, row.ambiguous);
        EXPECT_EQ(survey.bad() ? survey.bad()->record : 0, row.bad);
        EXPECT_EQ(survey.blanks(), row.blanks);
    }
}

}  // namespace
}  // namespace campora
