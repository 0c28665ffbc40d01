// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

// The height of each folder of src/. A folder includes its own headers and those of lower folders;
// folders of one height do not know each other. Qt is for the folders from kFirstWithQt up.
constexpr int kFirstWithQt = 6;
// clang-format off
const std::map<std::string, int, std::less<>> kHeight = {
    {"cli", 7}, {"desktop", 7},
    {"paint", 6},
    {"app", 5},
    {"work", 4}, {"presc", 4}, {"lots", 4}, {"export", 4}, {"coord", 4}, {"pages", 4},
    {"model", 3},
    {"colour", 2}, {"rtree", 2},
    {"platform", 1},
    {"base", 0},
};
// clang-format on

// Made by the build, not by a folder.
constexpr std::string_view kGenerated = "campora_version.h";

/// What is wrong with `header` (as written between its quotes or brackets) in a file of `folder`;
/// empty when nothing is.
std::string faultOf(std::string_view folder, std::string_view header, bool quoted) {
    const auto self = kHeight.find(folder);
    if (self == kHeight.end()) {
        return "a folder without a place in the layers";
    }
    if (!quoted) {
        static const std::regex qt(R"((Q[A-Za-z]\w*|q\w+\.h)(/.*)?)");
        const bool isQt = std::regex_match(header.begin(), header.end(), qt);
        return isQt && self->second < kFirstWithQt ? "the core knows no toolkit" : "";
    }
    if (header == kGenerated) {
        return "";
    }
    const auto other = kHeight.find(header.substr(0, header.find('/')));
    if (other == kHeight.end()) {
        return "not named from the root of the sources";
    }
    if (other->first == self->first || other->second < self->second) {
        return "";
    }
    return other->second == self->second ? "includes sideways" : "includes upwards";
}

/// Checks every include of one file; the number of includes seen.
int checkFile(const fs::path& path, const std::string& folder) {
    static const std::regex include(R"re(\s*#\s*include\s*(["<])([^">]+)[">].*)re");
    std::ifstream file(path);
    int seen = 0;
    int lineNumber = 0;
    std::smatch found;
    for (std::string line; std::getline(file, line);) {
        ++lineNumber;
        if (!std::regex_match(line, found, include)) {
            continue;
        }
        ++seen;
        const std::string header = found[2];
        EXPECT_EQ(faultOf(folder, header, found[1] == "\""), "")
            << folder << '/' << path.filename().string() << ':' << lineNumber << " includes "
            << header;
    }
    return seen;
}

TEST(Layering, FoldersIncludeOnlyFromBelowAndTheCoreKnowsNoToolkit) {
    const fs::path sources = fs::path(CAMPORA_SOURCE_DIR) / "src";
    int seen = 0;
    for (const auto& entry : fs::recursive_directory_iterator(sources)) {
        const fs::path& path = entry.path();
        if (path.extension() == ".h" || path.extension() == ".cpp") {
            seen += checkFile(path, fs::relative(path, sources).begin()->string());
        }
    }
    EXPECT_GT(seen, 100) << "the sources are not where this test looks for them";
}

TEST(Layering, TheRuleTellsAllowedFromForbidden) {
    struct Row {
        const char* name;
        const char* folder;
        const char* header;
        bool quoted;
        bool allowed;
    };

    const Row rows[] = {
        {"own folder", "model", "model/gph.h", true, true},
        {"two folders down", "work", "base/numbers.h", true, true},
        {"upwards", "base", "model/gph.h", true, false},
        {"sideways in the core", "work", "export/dbf.h", true, false},
        {"sideways between the programs", "cli", "desktop/main_window.h", true, false},
        {"relative path", "work", "../base/numbers.h", true, false},
        {"bare neighbour", "work", "rpt_view.h", true, false},
        {"unknown folder", "misc", "base/numbers.h", true, false},
        {"toolkit class in the core", "app", "QString", false, false},
        {"toolkit module in the core", "app", "QtCore/QString", false, false},
        {"toolkit header in the core", "base", "qglobal.h", false, false},
        {"toolkit above the core", "paint", "QPainter", false, true},
        {"standard library", "base", "queue", false, true},
        {"generated version", "cli", "campora_version.h", true, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(faultOf(row.folder, row.header, row.quoted).empty(), row.allowed);
    }
}

}  // namespace
