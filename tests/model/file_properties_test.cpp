// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/file_properties.h"

#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(FileProperties, SetReplacesTheFirstOfItsNameOrAppends) {
    FileProperties summary;
    summary.setProperty("Dosis", "10", "lt");
    summary.addProperty("dosis", "1", "");
    summary.addProperty("Dosis", "20", "lt");
    summary.setProperty("Dosis", "12,5", "lt/hect");
    summary.setProperty("Fecha", "hoy", "");
    const std::vector<FileProperty> expected = {{"Dosis", "12,5", "lt/hect"},
                                                {"dosis", "1", ""},
                                                {"Dosis", "20", "lt"},
                                                {"Fecha", "hoy", ""}};
    EXPECT_EQ(summary.entries(), expected);
}

TEST(FileProperties, ValueIsFollowedByABlankAndTheUnit) {
    FileProperties summary;
    summary.addProperty("Hectareas Error", "", "");
    summary.addProperty("Superficie", "12.5", "Has");
    EXPECT_EQ(summary.value(0), " ");
    EXPECT_EQ(summary.value(1), "12.5 Has");
}

TEST(FileProperties, BadIndicesAreRefused) {
    FileProperties summary;
    summary.addProperty("a", "b", "c");
    for (const int index : {-1, 1, 100000}) {
        EXPECT_THROW((void)summary.property(index), std::out_of_range);
        EXPECT_THROW((void)summary.value(index), std::out_of_range);
        EXPECT_THROW((void)summary.value_(index), std::out_of_range);
        EXPECT_THROW((void)summary.unit_(index), std::out_of_range);
    }
    summary.clear();
    EXPECT_THROW((void)summary.property(0), std::out_of_range);
}

}  // namespace
}  // namespace campora
