// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/summary_file.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

using Entries = std::vector<SummaryEntry>;

TEST(SummaryFile, ReadsNameValueAndUnit) {
    const std::tuple<const char*, std::string, Entries> rows[] = {
        {"plain", "\"Vel:\",\"15\",\"km/h\"\r\n", {{"Vel:", "15", "km/h"}}},
        {"bare line feeds, no quotes",
         "Vel:,15,km/h\nA:,b,c",
         {{"Vel:", "15", "km/h"}, {"A:", "b", "c"}}},
        {"commas inside", "\"A:\",\"9,5\",\"x,y\"", {{"A:", "9,5", "x,y"}}},
        {"blanks in the name", "\"  A : \",b,c", {{"A ::", "b", "c"}}},
        {"the last character of the name goes", "Lotes,b,c", {{"Lote:", "b", "c"}}},
        {"a last character of two bytes", "Lot\xC3\xA9,b,c", {{"Lot:", "b", "c"}}},
        {"doubled quote", "\"A:\",\"5\"\"\",x", {{"A:", "5\"", "x"}}},
        {"quote left single by a console", "\"A:\",\"5\" ancho\",x", {{"A:", "5\" ancho", "x"}}},
        {"Windows-1252", "\"Hect\xE1reas:\",1,Has", {{"Hect\xC3\xA1reas:", "1", "Has"}}},
        {"a blank line ends it", "A:,1,\n\nB:,2,\n", {{"A:", "1", ""}}},
        {"two fields end it", "A:,1,\nB:,2\nC:,3,\n", {{"A:", "1", ""}}},
        {"cut inside quotes", "A:,1,\n\"B:\",\"2", {{"A:", "1", ""}}},
    };
    for (const auto& [name, bytes, entries] : rows) {
        EXPECT_EQ(decodeSummary(bytes).entries(), entries) << name;
    }
}

TEST(SummaryFile, RemembersItsSource) {
    const TempFolder folder;
    const std::string path = folder.write("Wrk0001.txt", "A:,1,\n");
    FileProperties summary;
    summary.addProperty("old", "", "");
    loadSummaryFile(path, summary);
    EXPECT_EQ(summary.entries(), (Entries{{"A:", "1", ""}}));
    EXPECT_EQ(summary.sourcePath, path);

    loadSummaryFile(folder.write("Wrk0001.txt", "\r\n"), summary);
    EXPECT_EQ(summary.sourcePath, path) << "an empty one can be filled";
    loadSummaryFile(folder.write("Wrk0001.txt", "otra cosa"), summary);
    EXPECT_EQ(summary.sourcePath, "");
    loadSummaryFile(folder.write("Wrk0001.txt", "A:,1,\n"), summary);

    loadSummaryFile(folder.file("missing.txt"), summary);
    EXPECT_EQ(summary.count(), 0);
    EXPECT_EQ(summary.sourcePath, "") << "nothing was read that could be deleted";
}

}  // namespace
}  // namespace campora
