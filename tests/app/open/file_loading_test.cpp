// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_loading.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

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
