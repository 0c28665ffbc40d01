// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lots/lot_commands.h"

#include <functional>

#include <gtest/gtest.h>

#include "app/lots/lot_saving.h"
#include "app/unsaved_work.h"
#include "lots/file_lots.h"
#include "support/lot_files.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

struct LotCommandsTest : testing::Test, SessionDesk {
    LotCommandsTest() {
        session.start();
        settings.values["LotesPath"] = folder.path();
    }
    void openLot(const std::string& name, const std::vector<LonLat>& vertices) {
        ASSERT_TRUE(open({writeLot(folder, name, vertices, name)}));
    }

    LotCommands& commands = session.lotCommands();
};

TEST_F(LotCommandsTest, AnEditedResultOfMergingIsNoLongerUntitledOnceItIsSaved) {
    openLot("a.lot", squareRing(-60, -34, 1));
    openLot("b.lot", squareRing(-59.5, -34, 1));
    commands.merge();
    EXPECT_EQ(window.title, "Campora - [Untitled]");
    commands.edit();
    dialogs.inputAnswers.push_back("5");
    dialogs.saveAnswers.push_back({folder.file("lote05.lot"), 0});
    session.lotEditor().save();
    EXPECT_EQ(listed(), (Names{"lote05.lot", "a.lot", "b.lot"}));
}

TEST_F(LotCommandsTest, AnOpenFileIsWrittenOverByNoneButItself) {
    openLot("a.lot", squareRing(-60, -34, 1));
    openLot("b.lot", squareRing(-59, -34, 1));
    const std::string before = contentOf(folder.file("a.lot"));
    const auto saveTo = [this](const char* name) {
        dialogs.messages.clear();
        dialogs.saveAnswers.push_back({folder.file(name), 0});
        commands.save();
        return dialogs.messages.empty() ? std::string() : dialogs.messages[0];
    };
    EXPECT_NE(saveTo("b.lot").find("se perdería " + folder.file("b.lot")), std::string::npos);
    EXPECT_EQ(saveTo("a.lot"), "") << "its own";
    commands.merge();
    EXPECT_NE(saveTo("a.lot").find("se perdería "), std::string::npos);
    session.map().removeFile(&session.map().files().file(1));
    EXPECT_NE(saveTo("a.lot").find("se perdería "), std::string::npos) << "it was merged from it";
    EXPECT_EQ(contentOf(folder.file("a.lot")), before);
    EXPECT_EQ(saveTo("c.lot"), "");
    EXPECT_EQ(listed(), (Names{"c.lot", "b.lot"}));
}

TEST_F(LotCommandsTest, AResultOfMergingThatIsNotSavedGoesOnlyWhenTheUserAgrees) {
    openLot("a.lot", squareRing(-60, -34, 1));
    openLot("b.lot", squareRing(-59.5, -34, 1));
    EXPECT_TRUE(mayCloseFiles(session.map()));
    commands.merge();
    dialogs.openAnswers.push_back({folder.file("b.lot")});
    const std::function<void()> ways[] = {
        [this] { EXPECT_FALSE(mayCloseFiles(session.map())); },
        [this] { session.listCommands().removeCurrentFile(); },
        [this] { session.fileCommands().openRecent(folder.file("a.lot")); },
        [this] { session.fileCommands().fileOpen(); },
    };
    for (const auto& leave : ways) {
        dialogs.questions.clear();
        dialogs.yesNoAnswers = {false};
        leave();
        EXPECT_EQ(dialogs.questions, Names{"Exclamation|Lote Virtual|Fusionado no se guardó. "
                                           "¿Perderlo de todos modos?"});
        EXPECT_EQ(listed(), (Names{"Fusionado", "a.lot", "b.lot"}));
    }
    dialogs.yesNoAnswers = {true};
    session.listCommands().removeCurrentFile();
    EXPECT_EQ(listed(), (Names{"a.lot", "b.lot"}));
    dialogs.questions.clear();
    session.listCommands().removeCurrentFile();  // this one is on disk
    EXPECT_TRUE(dialogs.questions.empty());
}

TEST_F(LotCommandsTest, TheProposedNumberIsTheLotsOwnOrTheNextFree) {
    EXPECT_EQ(proposedLotNumber(session.map(), settings, R"(C:\Lotes\LOTE07.lot)"), "7");
    EXPECT_EQ(proposedLotNumber(session.map(), settings, "lote7.lot"), "1");
    folder.write("lote01.lot", "");
    folder.write("lote02.lot", "");
    EXPECT_EQ(proposedLotNumber(session.map(), settings, ""), "3");
    EXPECT_EQ(lotFileName(0), "lote00.lot");
    EXPECT_EQ(lotFileName(42), "lote42.lot");
}

}  // namespace
}  // namespace campora
