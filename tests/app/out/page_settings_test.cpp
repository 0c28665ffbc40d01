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

TEST(PageSettings, NonsenseIsAnOrdinaryPage) {
    MemorySettings settings;
    settings.values = {{"printPaper", "B0"}, {"printLandscape", "sí"}, {"printMarginTop", "-400"}};
    const PageSetup setup = readPageSetup(settings);
    EXPECT_EQ(setup.paper.key, "A4");
    EXPECT_EQ(setup.sheet(), (PageRect{0, 0, 297, 210}));
    EXPECT_EQ(setup.inside(), (PageRect{10, 10, 277, 190}));
}

TEST(PageSettings, PapersAreNamedInTheUsersLanguageWithTheirSize) {
    EXPECT_EQ(paperText(papers()[1], Texts(Language::Portuguese)), "A4 (210 × 297 mm)");
    EXPECT_EQ(paperText(papers()[3], Texts(Language::Spanish)), "Carta (216 × 279 mm)");
}

}  // namespace
}  // namespace campora
