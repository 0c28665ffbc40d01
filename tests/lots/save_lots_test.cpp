// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/save_lots.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(SaveLots, OneHasItsNameSeveralAreNumbered) {
    using Paths = std::vector<std::string>;
    EXPECT_EQ(lotPaths("c/campo.lot", 1), Paths{"c/campo.lot"});
    EXPECT_EQ(lotPaths("c/campo.LOT", 2), (Paths{"c/campo-1.LOT", "c/campo-2.LOT"}));
    EXPECT_EQ(lotPaths("campo", 2), (Paths{"campo-1.lot", "campo-2.lot"}));
}

TEST(SaveLots, WritesAllOrNamesTheOneThatFails) {
    const TempFolder folder;
    const Lot lots[] = {{{{-1, -2}}, "uno"}, {{{-3, -4}}, "dos"}};
    const auto saved = saveLots(lots, folder.file("a.lot"));
    ASSERT_TRUE(saved);
    EXPECT_EQ(contentOf(saved->at(1)), "dos\r\n4. , 3.\r\n");
    std::filesystem::create_directory(folder.file("b-2.lot"));
    const auto failed = saveLots(lots, folder.file("b.lot"));
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.failure().arguments.at(0), folder.file("b-2.lot"));
    EXPECT_FALSE(std::filesystem::exists(folder.file("b-1.lot"))) << "all or none";
}

}  // namespace
}  // namespace campora
