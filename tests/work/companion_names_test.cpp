// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/companion_names.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {

namespace {

TEST(CompanionNames, DeriveTheOtherFileOfTheJob) {
    struct Row {
        const char* name;
        const char* path;
        const char* summary;
        const char* track;
    };

    const Row rows[] = {
        {"track", "C:\\Datos\\Log0001.nbr", "C:\\Datos\\Wrk0001.txt", "C:\\Datos\\Log0001.nbr"},
        {"summary", "C:\\Datos\\Wrk0001.txt", "C:\\Datos\\Wrk0001.txt", "C:\\Datos\\Log0001.nbr"},
        {"capitals", "LOG0001.NBR", "Wrk0001.txt", "LOG0001.NBR"},
        {"the folder keeps its case and its log", "/Log/LOG7.nbr", "/Log/Wrk7.txt",
         "/Log/LOG7.nbr"},
        {"both separators", "/Log\\x/LOG7.nbr", "/Log\\x/Wrk7.txt", "/Log\\x/LOG7.nbr"},
        {"every log of the name", "LogLog.nbr", "WrkWrk.txt", "LogLog.nbr"},
        {"a name without log", "Lote.nbr", "lote.txt", "Lote.nbr"},
        {"another ending", "Log0001.rpt", "", ""},
        {"empty", "", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const CompanionNames names = companionNames(row.path);
        EXPECT_EQ(names.summaryPath, row.summary);
        EXPECT_EQ(names.trackPath, row.track);
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
