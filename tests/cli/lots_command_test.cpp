// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Lots written and merged by the batch program.

#include <string>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "support/batch_run.h"

namespace campora {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

struct LotCommands : BatchRun {
    /// A square of so many degrees.
    std::string square(const std::string& name, double west, double side,
                       const std::string& description = "") const {
        std::ostringstream text;
        text << description;
        for (const auto& [x, y] :
             {std::pair{west, 0.0}, {west + side, 0.0}, {west + side, side}, {west, side}}) {
            text << -y << " , " << -x << "\r\n";
        }
        return folder.write(name, text.str());
    }

    std::string target = folder.file("union.lot");
};

TEST_F(LotCommands, ALotIsWrittenAndToldAsItsEditorDoes) {
    Words words = {"lot", "-58.5,-34.25", "-58.4,-34.25", "-58.4,-34.3", "-o", target};
    words.insert(words.end(), {"--description", "Campo 1\n12"});
    ASSERT_EQ(run(words).status, 0);
    EXPECT_EQ(contentOf(target),
              "Campo 1\r\n12_\r\n34.25 , 58.5\r\n34.25 , 58.4\r\n34.3 , 58.4\r\n");
    const json layer = json::parse(run("info --json @union.lot").out)["files"][0]["layers"][0];
    EXPECT_EQ(layer["vertices"], json::parse("[[-58.5,-34.25],[-58.4,-34.25],[-58.4,-34.3]]"));
    EXPECT_EQ(layer["info"], "Lote Virtual. V 1.0\r\n2560.5Has");
    EXPECT_EQ(layer["description"], "Campo 1\r\n12_\r\n");

    const Outcome refused = run("lot 1,1 2,2 3,1 -o @falta/a.lot");
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.boxes, HasSubstr("falta/a.lot"));
}

TEST_F(LotCommands, LotsThatTouchBecomeOne) {
    square("a.lot", -1, 1, "Campo\r\nSoja\r\n");
    square("b.lot", 0, 1, "Soja\r\nMaíz\r\n");
    const Outcome merged = run("merge @a.lot @b.lot -o @union.lot");
    EXPECT_EQ(merged.status, 0);
    EXPECT_EQ(merged.out, target + "\n");
    EXPECT_EQ(merged.boxes, "");
    EXPECT_THAT(contentOf(target), StartsWith("Campo\r\nSoja\r\nMa\xEDz\r\n"));
}

TEST_F(LotCommands, LotsApartGoToNumberedFiles) {
    const std::string first = square("a.lot", 0, 2, "A\r\n");
    square("b.lot", 1, 2, "B\r\n");
    square("c.lot", 20, 1, "C\r\n");
    folder.write("UNION-3.lot", "de antes");
    folder.write("union-x.lot", "otro");
    const Outcome apart = run("merge @a.lot @c.lot @b.lot -o @union.lot");
    EXPECT_EQ(apart.status, 0);
    EXPECT_EQ(apart.out, folder.file("union-1.lot") + "\n" + folder.file("union-2.lot") + "\n");
    EXPECT_EQ(apart.boxes, "Quedan 2 contornos separados\n"
                           "Quedan al lado lotes numerados de antes: UNION-3.lot\n");
    EXPECT_THAT(contentOf(folder.file("union-1.lot")), StartsWith("A\r\nB\r\n"));
    EXPECT_THAT(contentOf(folder.file("union-2.lot")), StartsWith("C\r\n"));
    EXPECT_TRUE(isThere("UNION-3.lot") && !isThere("union.lot"));

    const std::string before = contentOf(first);
    const Outcome lost = run("merge @a.lot @b.lot -o @a.lot");
    EXPECT_EQ(lost.status, 1);
    EXPECT_THAT(lost.boxes, HasSubstr("se perdería " + first));
    EXPECT_EQ(contentOf(first), before);
}

TEST_F(LotCommands, WhatCanBeMergedIsMerged) {
    folder.write("linea.lot", "0,0\r\n1,1\r\n");
    square("a.lot", 0, 1);
    EXPECT_EQ(run("merge @falta.lot -o @union.lot").status, 1);
    const Outcome nothing = run("merge @linea.lot -o @union.lot");
    EXPECT_EQ(nothing.status, 1);
    EXPECT_EQ(nothing.boxes, "Los lotes no encierran ninguna superficie\n");
    EXPECT_FALSE(isThere("union.lot"));
    EXPECT_EQ(run("merge @falta.lot @a.lot -o @union.lot").status, 1);
    EXPECT_TRUE(isThere("union.lot")) << "what could be done is done";
    EXPECT_EQ(run("merge @linea.lot @a.lot -o @union.lot").status, 0);
}

}  // namespace
}  // namespace campora
