// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/companion_names.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(CompanionNames, DeriveTheOtherFileOfTheJob) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"summary", "C:\\Datos\\Wrk0001.txt", "C:\\Datos\\Wrk0001.txt", "C:\\Datos\\Log0001.nbr"},
        {"the folder keeps its case and its log", "/Log/LOG7.nbr", "/Log/Wrk7.txt",
         "/Log/LOG7.nbr"},
        {"every log of the name", "LogLog.nbr", "WrkWrk.txt", "LogLog.nbr"},
        {"a name without log", "Lote.nbr", "lote.txt", "Lote.nbr"},
        {"empty", "", "", ""},
    };
    for (const auto& [name, path, summary, track] : rows) {
        SCOPED_TRACE(name);
        const CompanionNames names = companionNames(path);
        EXPECT_EQ(names.summaryPath, summary);
        EXPECT_EQ(names.trackPath, track);
    }
}

TEST(CompanionNames, SummaryOfAReportIsFoundInAnyCase) {
    const TempFolder folder;
    EXPECT_EQ(findLogForReport(folder.file("Log0007.rpt")), "");
    const std::string summary = folder.write("WRK0007.TXT", "");
    EXPECT_EQ(findLogForReport(folder.file("Log0007.rpt")), summary);
}

}  // namespace
}  // namespace campora
