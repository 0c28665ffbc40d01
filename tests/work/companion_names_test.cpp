// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/companion_names.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(CompanionNames, SummaryOfAReportIsFoundInAnyCase) {
    const TempFolder folder;
    EXPECT_EQ(findLogForReport(folder.file("Log0007.rpt")), "");
    const std::string summary = folder.write("WRK0007.TXT", "");
    EXPECT_EQ(findLogForReport(folder.file("Log0007.rpt")), summary);
}

}  // namespace
}  // namespace campora
