// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/folder_files.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/folder_looks.h"
#include "base/paths.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(FolderLooks, FindWhatTheFolderHeldWithoutRegardToCase) {
    const TempFolder folder;
    for (const char* name : {"Lote.rpt", "LOTE.RPT", "otro.rpt", "dentro/d.txt"}) {
        folder.write(name, "");
    }
    const std::pair<std::string, std::string> rows[] = {
        {"lote.rpt", "LOTE.RPT"},
        {"OTRO.rpt", "otro.rpt"},
        {"falta.rpt", ""},
        {"dentro", ""},
        {"dentro/D.TXT", "dentro/d.txt"},
        {"dentro\\d.txt", "dentro\\d.txt"},
    };
    FolderLooks looks;
    for (const auto& [name, found] : rows) {
        const std::string expected = found.empty() ? "" : folder.file(found);
        EXPECT_EQ(looks.find(folder.file(name)).path, expected) << name;
    }
    folder.write("falta.rpt", "");
    EXPECT_EQ(looks.find(folder.file("falta.rpt")).path, "") << "one look at each folder";
}

}  // namespace
}  // namespace campora
