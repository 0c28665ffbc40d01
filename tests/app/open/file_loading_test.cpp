// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_loading.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(FileLoading, TheEndingDecides) {
    const std::pair<const char*, const char*> rows[] = {{R"(C:\A\B.RPT)", ".rpt"},
                                                        {"Parte 8 columnas.txt", ".txt"},
                                                        {"tarjeta/LOG0001.Nbr", ".nbr"},
                                                        {".rpt", ".rpt"},
                                                        {"lote.PRE", ".pre"},
                                                        {"lote.vrt", ".vrt"},
                                                        {"trabajo.rpt.doc", ""},
                                                        {"rpt", ""},
                                                        {"trabajo.rpt/", ""},
                                                        {"", ""}};
    for (const auto& [path, ending] : rows) {
        const FileFormat* const format = formatOf(path);
        EXPECT_EQ(format != nullptr ? format->ending : "", ending) << path;
    }
}

TEST(FileLoading, WhatTheUserChoseIsOfferedToTheReaderOfPrescriptionsLast) {
    EXPECT_EQ(formatToOpen("parte.txt").ending, ".txt");
    EXPECT_EQ(formatToOpen("tarjeta/PRESC").ending, ".pre");
    EXPECT_EQ(formatToOpen("lote.pre.bak").ending, ".pre");
}

TEST(FileLoading, EveryFormatHasItsFilter) {
    const std::vector<FileFilter> filters = openFilters(Texts(Language::English));
    ASSERT_EQ(filters.size(), fileFormats().size() + 3);
    EXPECT_EQ(filters.front().caption, "Supported files");
    EXPECT_EQ(filters.front().patterns,
              (std::vector<std::string>{"*.rpt", "*.txt", "*.nbr", "*.shp", "*.vrt", "*.lot",
                                        "*.pre", "*.fsp"}));
    EXPECT_EQ(filters[3].caption, "Work logs");
    EXPECT_EQ(filters[3].patterns, std::vector<std::string>{"*.nbr"});
    EXPECT_EQ(filters.back().patterns, std::vector<std::string>{"*"});
}

}  // namespace
}  // namespace campora
