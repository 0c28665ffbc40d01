// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/recent_files.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace campora {
namespace {

using Paths = std::vector<std::string>;

TEST(RecentFiles, LatestFirstEachOnceAtMostNine) {
    MemorySettings settings;
    RecentFiles recent(settings);
    for (int i = 0; i < 12; ++i) {
        recent.add("f" + std::to_string(i));
    }
    recent.add("F5");
    EXPECT_EQ(recent.paths(), (Paths{"F5", "f11", "f10", "f9", "f8", "f7", "f6", "f4", "f3"}));
    recent.remove("f10");
    EXPECT_EQ(RecentFiles(settings).paths().size(), 8U) << "kept in the store";
}

TEST(RecentFiles, NonsenseInTheStoreIsNoFile) {
    MemorySettings settings;
    settings.values["RecentFiles"] = "\n \r\n a.rpt \r\n\n";
    EXPECT_EQ(RecentFiles(settings).paths(), Paths{"a.rpt"});
}

}  // namespace
}  // namespace campora
