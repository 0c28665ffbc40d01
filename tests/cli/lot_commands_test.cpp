// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Lots written and merged by the batch program.

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/program.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using nlohmann::json;
using Words = std::vector<std::string>;

struct LotCommands : testing::Test {
    TempFolder folder;
    std::ostringstream out;
    std::ostringstream boxes;

    int run(Words words) {
        out.str("");
        boxes.str("");
        return runProgram(words, "", {out, boxes});
    }
    /// A square of so many degrees.
    std::string square(const std::string& name, double west, double south, double side,
                       const std::string& description = "") {
        std::ostringstream text;
        text << description;
        for (const auto& [x, y] : {std::pair{west, south},
                                   {west + side, south},
                                   {west + side, south + side},
                                   {west, south + side}}) {
            text << -y << " , " << -x << "\r\n";
        }
        return folder.write(name, text.str());
    }
    [[nodiscard]] bool isThere(const std::string& name) const {
        return std::filesystem::exists(nativePath(folder.file(name)));
    }
};

TEST_F(LotCommands, ALotIsWrittenAndToldAsItsEditorDoes) {
    const std::string path = folder.file("lote07.lot");
    ASSERT_EQ(run({"lot", "-58.5,-34.25", "-58.4,-34.25", "-58.4,-34.3", "--description",
                   "Campo 1\n12", "-o", path}),
              0);
    EXPECT_EQ(contentOf(path), "Campo 1\r\n12_\r\n34.25 , 58.5\r\n34.25 , 58.4\r\n34.3 , 58.4\r\n");
    ASSERT_EQ(run({"info", "--json", path}), 0);
    const json file = json::parse(out.str())["files"][0];
    EXPECT_EQ(file["name"], "lote07.lot");
    const json layer = file["layers"][0];
    EXPECT_EQ(layer["vertices"], json::parse("[[-58.5,-34.25],[-58.4,-34.25],[-58.4,-34.3]]"));
    EXPECT_EQ(layer["info"], "Lote Virtual. V 1.0\r\n2560.5Has");
    EXPECT_EQ(layer["description"], "Campo 1\r\n12_\r\n");
}

TEST_F(LotCommands, AWrongCommandLineIsRefused) {
    const std::string path = folder.file("a.lot");
    const Words rows[] = {
        {"lot", "1,1", "2,2", "-o", path},
        {"lot", "1,1", "2,2", "3", "-o", path},
        {"lot", "1,1", "2,2", "3,x", "-o", path},
        {"lot", "1,1", "2,2", "181,0", "-o", path},
        {"lot", "1,1", "2,2", "-0,-90.1", "-o", path},
        {"lot", "1,1", "2,2", "nan,0", "-o", path},
        {"lot", "1,1", "2,2", "3,1"},
        {"lot", "1,1", "2,2", "3,1", "-o", folder.file("a.txt")},
        {"merge", "b.lot"},
        {"merge", "b.lot", "-o", folder.file("a.shp")},
    };
    for (const Words& words : rows) {
        EXPECT_EQ(run(words), 2) << testing::PrintToString(words);
        EXPECT_FALSE(boxes.str().empty());
    }
    EXPECT_FALSE(isThere("a.lot"));
}

TEST_F(LotCommands, AnOutputThatCannotBeWrittenIsTold) {
    EXPECT_EQ(run({"lot", "1,1", "2,2", "3,1", "-o", folder.file("falta/a.lot")}), 1);
    EXPECT_NE(boxes.str().find("falta/a.lot"), std::string::npos);
}

TEST_F(LotCommands, LotsThatTouchBecomeOne) {
    const std::string target = folder.file("union.lot");
    ASSERT_EQ(run({"merge", square("a.lot", -1, 0, 1, "Campo\r\nSoja\r\n"),
                   square("b.lot", 0, 0, 1, "Soja\r\nMaíz\r\n"), "-o", target}),
              0);
    EXPECT_EQ(out.str(), target + "\n");
    EXPECT_EQ(boxes.str(), "");
    ASSERT_EQ(run({"info", "--json", target}), 0);
    const json layer = json::parse(out.str())["files"][0]["layers"][0];
    EXPECT_EQ(layer["vertices"].size(), 4U);
    EXPECT_EQ(layer["description"], "Campo\r\nSoja\r\nMaíz\r\n");
    EXPECT_EQ(layer["bound"]["minX"], -1);
    EXPECT_EQ(layer["bound"]["maxX"], 1);
}

TEST_F(LotCommands, LotsApartGoToNumberedFilesAndAHoleIsTold) {
    const std::string target = folder.file("union.lot");
    const Words ring = {square("a.lot", 0, 0, 2, "A\r\n"), square("b.lot", 1, 0, 2, "B\r\n")};
    folder.write("UNION-3.lot", "de antes");
    folder.write("union-x.lot", "otro");
    ASSERT_EQ(run({"merge", ring[0], square("c.lot", 20, 0, 1, "C\r\n"), ring[1], "-o", target}),
              0);
    EXPECT_EQ(out.str(), folder.file("union-1.lot") + "\n" + folder.file("union-2.lot") + "\n");
    EXPECT_EQ(boxes.str(), "Quedan 2 contornos separados\n"
                           "Quedan al lado lotes numerados de antes: UNION-3.lot\n");
    EXPECT_TRUE(contentOf(folder.file("union-1.lot")).starts_with("A\r\nB\r\n"));
    EXPECT_TRUE(contentOf(folder.file("union-2.lot")).starts_with("C\r\n"));
    EXPECT_TRUE(isThere("UNION-3.lot"));
    const std::string before = contentOf(ring[0]);
    EXPECT_EQ(run({"merge", ring[0], ring[1], "-o", ring[0]}), 1);
    EXPECT_NE(boxes.str().find("se perdería " + ring[0]), std::string::npos);
    EXPECT_EQ(contentOf(ring[0]), before);
    std::filesystem::remove(folder.file("UNION-3.lot"));
    std::filesystem::remove(folder.file("union-1.lot"));
    std::filesystem::remove(folder.file("union-2.lot"));
    EXPECT_FALSE(isThere("union.lot"));
    const std::string frame = folder.write(
        "marco.lot", "0,0\r\n0,4\r\n4,4\r\n4,0\r\n3,0\r\n3,3\r\n1,3\r\n1,1\r\n3,1\r\n3,0\r\n");
    ASSERT_EQ(run({"merge", frame, square("d.lot", -1, -4, 0.5), "--language", "en", "-o", target}),
              0);
    EXPECT_EQ(boxes.str(), "A lot cannot have holes. Included in the outline: 1\n");
}

TEST_F(LotCommands, WhatCanBeMergedIsMerged) {
    const std::string target = folder.file("union.lot");
    EXPECT_EQ(run({"merge", folder.file("falta.lot"), square("a.lot", 0, 0, 1), "-o", target}), 1);
    EXPECT_TRUE(isThere("union.lot"));
    const std::string line = folder.write("linea.lot", "0,0\r\n1,1\r\n");
    EXPECT_EQ(run({"merge", line, square("a.lot", 0, 0, 1), "-o", target}), 0);
    EXPECT_EQ(boxes.str(), "Lotes que no encierran ninguna superficie y no se unieron: 1\n");
    std::filesystem::remove(nativePath(target));
    EXPECT_EQ(run({"merge", line, "-o", target}), 1);
    EXPECT_EQ(boxes.str(), "Los lotes no encierran ninguna superficie\n");
    EXPECT_EQ(run({"merge", folder.file("falta.lot"), "-o", target}), 1);
    EXPECT_FALSE(isThere("union.lot"));
}

}  // namespace
}  // namespace campora
