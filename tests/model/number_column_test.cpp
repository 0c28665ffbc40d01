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
        {"1,2.3", {}, {}},
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
    const std::tuple<const char*, std::vector<std::string>, bool, bool, bool, int, int, bool>
        rows[] = {
            {"a point between thousands or decimals",
             {"950", "1.200"},
             true,
             true,
             true,
             0,
             0,
             true},
            {"the same in a column of numbers", {"950", "1.200"}, true, false, false, 0, 0, false},
            {"no thousands", {"1.200", "0.5"}, true, false, false, 0, 0, true},
            {"both signs", {"1.5", "2,5"}, false, false, false, 2, 0, true},
            {"blanks and stars", {"", "7", "***"}, true, true, false, 0, 2, true},
            {"nothing but blanks", {"", ""}, false, false, false, 1, 2, true},
        };
    for (const auto& [name, cells, point, comma, ambiguous, bad, blanks, isText] : rows) {
        SCOPED_TRACE(name);
        ColumnSurvey survey(isText);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const bool plain = cells[i].find_first_not_of("0123456789.") == std::string::npos;
            survey.add(static_cast<std::int32_t>(i) + 1, cells[i], plain && !cells[i].empty());
        }
        EXPECT_EQ(survey.fits(DecimalSign::Point), point);
        EXPECT_EQ(survey.fits(DecimalSign::Comma), comma);
        EXPECT_EQ(survey.ambiguous() != nullptr, ambiguous);
        EXPECT_EQ(survey.bad() ? survey.bad()->record : 0, bad);
        EXPECT_EQ(survey.blanks(), blanks);
    }
}

}  // namespace
}  // namespace campora
