// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_types.h"

#include <map>

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace campora {
namespace {

TEST(FileTypes, RegistersReportsAndPrescriptions) {
    MemoryClasses classes;
    registerFileTypes("C:\\Prog\\campora.exe", classes);
    const std::map<std::string, std::string, std::less<>> expected{
        {".rpt", "FurrowScope.RptFile"},
        {"FurrowScope.RptFile\\shell\\open\\command", "C:\\Prog\\campora.exe \"%1\""},
        {"FurrowScope.RptFile\\DefaultIcon", "C:\\Prog\\rpt.ico"},
        {".pre", "FurrowScope.PreFile"},
        {"FurrowScope.PreFile\\shell\\open\\command", "C:\\Prog\\campora.exe \"%1\""},
        {"FurrowScope.PreFile\\DefaultIcon", "C:\\Prog\\pre.ico"},
    };
    EXPECT_EQ(classes.values, expected);
    EXPECT_TRUE(classes.finished);
}

}  // namespace
}  // namespace campora
