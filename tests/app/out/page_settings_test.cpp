// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/page_settings.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace campora {
namespace {

TEST(PageSettings, ComeBackAsTheyWere) {
    for (const Paper& paper : papers()) {
        PageSetup setup;
        setup.paper = paper;
        setup.landscape = paper.widthMm < 200;
        setup.margins = {0, 7, PageMargins::kMost, 12};
        setup.summary = false;
        MemorySettings settings;
        writePageSetup(settings, setup);
        const PageSetup read = readPageSetup(settings);
        EXPECT_EQ(read.paper.key, paper.key);
        EXPECT_EQ(read.landscape, setup.landscape);
        EXPECT_EQ(read.margins, setup.margins);
        EXPECT_TRUE(read.legend && !read.summary && read.description);
    }
}

}  // namespace
}  // namespace campora
