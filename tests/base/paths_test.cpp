// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/paths.h"

#include <array>
#include <utility>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

constexpr bool kSlashSystem = std::filesystem::path::preferred_separator == '/';

TEST(Paths, PartsOfAPath) {
    const std::array<std::string_view, 3> rows[] = {
        {"", "", ""},
        {"/a.rpt", "/", "a.rpt"},
        {"C:\\b\\a.rpt", "C:\\b\\", "a.rpt"},
        {"b/c/", "b/c/", ""},
        // The folder ends at the last "\" whatever "/" follows; the name follows either.
        {"b\\c/a.rpt", "b\\", "a.rpt"},
        {"b/c\\a.rpt", "b/c\\", "a.rpt"},
    };
    for (const auto& [path, folder, name] : rows) {
        EXPECT_EQ(folderPart(path), folder) << path;
        EXPECT_EQ(fileNamePart(path), name) << path;
        EXPECT_EQ(folderOf(path) + std::string(name), path);
    }
}

TEST(Paths, StemIsTheNameWithoutItsEnding) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"C:\\a.b\\Lote 3.1.rpt", "Lote 3.1"}, {"a.b/lote", "lote"}, {"a/.lot", ""}, {"", ""}};
    for (const auto& [path, stem] : rows) {
        EXPECT_EQ(fileStem(path), stem) << path;
    }
}

TEST(Paths, EndingIsTheLastFourCharacters) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"a/Lote.RPT", ".rpt"},
        {"", ""},
        {"a.\u00d1\u00c1B", ".\u00f1\u00e1b"},
        {"x\U0001F33E.ab", "\U0001F33E.ab"}};
    for (const auto& [path, ending] : rows) {
        EXPECT_EQ(pathEnding(path), ending) << path;
    }
}

TEST(Paths, BackslashSeparatesUnlessAFileIsNamedSo) {
    if (!kSlashSystem) {
        GTEST_SKIP() << "this system separates with it anyway";
    }
    const TempFolder folder;
    EXPECT_EQ(pathText(nativePath(folder.path() + "\\sub\\lote.rpt")), folder.file("sub/lote.rpt"));
    const std::string odd = folder.write("a\\b.rpt", "odd");
    EXPECT_EQ(pathText(nativePath(odd)), odd);
}

TEST(Paths, OneFileHasManyNames) {
    const TempFolder folder;
    const std::string file = folder.write("sur/a.rpt", "x");
    (void)folder.write("b.rpt", "x");
    std::filesystem::create_symlink(nativePath(file), nativePath(folder.file("enlace.rpt")));
    const std::pair<std::string, bool> rows[] = {
        {file, true},
        {folder.file("sur/../sur/a.rpt"), true},
        {folder.file("enlace.rpt"), true},
        {folder.file("b.rpt"), false},
    };
    for (const auto& [other, same] : rows) {
        EXPECT_EQ(isSameFile(file, other), same) << other;
    }
}

TEST(FindIgnoringCase, ExactNameFirstThenAnyCase) {
    const TempFolder folder;
    folder.write("Cami\u00f3n \u00d1and\u00fa.RPT", "");
    folder.write("b.LOT", "");
    folder.write("B.lot", "");
    folder.write("b.lot2", "");
    folder.write("Sub/Uno.TXT", "");
    std::filesystem::create_directory(nativePath(folder.file("Folder.rpt")));
    const std::array<const char*, 3> rows[] = {
        {"accents", "CAMI\u00d3N \u00f1and\u00fa.rpt", "Cami\u00f3n \u00d1and\u00fa.RPT"},
        {"exact name wins", "b.LOT", "b.LOT"},
        {"first in byte order", "b.Lot", "B.lot"},
        {"other letters", "camion \u00f1and\u00fa.rpt", "camion \u00f1and\u00fa.rpt"},
        {"folder part stays", "Sub/uno.txt", "Sub/Uno.TXT"},
        {"folders are not searched", "sub/uno.txt", "sub/uno.txt"},
        {"a folder is no file", "FOLDER.RPT", "FOLDER.RPT"},
    };
    if (std::filesystem::exists(nativePath(folder.file("B.LOT")))) {
        GTEST_SKIP() << "names of this disk have no case";
    }
    for (const auto& [name, asked, found] : rows) {
        EXPECT_EQ(findIgnoringCase(folder.file(asked)), folder.file(found)) << name;
    }
}

}  // namespace
}  // namespace campora
