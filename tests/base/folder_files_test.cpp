// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/folder_files.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(FolderFiles, GoByTheirNamesWithoutRegardToCase) {
    const TempFolder folder;
    for (const char* name : {"b.txt", "C.TXT", "a.txt", "A.nbr", "Ñu.txt", "dentro/d.txt"}) {
        folder.write(name, "");
    }
    std::vector<std::string> names;
    for (const std::string& path : filesIn(
             folder.path(), [](const std::string& file) { return pathEnding(file) == ".txt"; })) {
        names.emplace_back(fileNamePart(path));
    }
    EXPECT_EQ(names, (std::vector<std::string>{"a.txt", "b.txt", "C.TXT", "Ñu.txt"}));
    const auto all = [](const std::string&) { return true; };
    EXPECT_EQ(filesIn(folder.path() + "/", all).size(), 5U);
    EXPECT_TRUE(filesIn(folder.file("falta"), all).empty());
    EXPECT_TRUE(filesIn(folder.file("a.txt"), all).empty());
}

}  // namespace
}  // namespace campora
