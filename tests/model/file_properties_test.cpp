// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/file_properties.h"

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
    const std::vector<SummaryEntry> expected = {{"Dosis", "12,5", "lt/hect"},
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

}  // namespace
}  // namespace campora
