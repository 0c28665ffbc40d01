// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_commands.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/lot_files.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

struct FileCommandsTest : testing::Test, SessionDesk {
    FileCommandsTest() { session.start(); }

    FileCommands& commands = session.fileCommands();
};

TEST_F(FileCommandsTest, CancellingAPreviewPutsEverythingBack) {
    open({report("lote.rpt")});
    session.map().style().graduated = false;
    session.colours().modes.mnuColorDateMap();
    session.map().scales().of(false).setClassNumber(3);
    session.display().view().zoomIn();
    const ViewTransform view = session.display().view().transform();
    const std::string title = window.title;
    const ValueRanges ranges = session.map().ranges();

    const std::string broken = folder.write("roto.rpt", "no es un reporte");
    dialogs.openSelections = {
        {report("nuevo.rpt", 9000, 0x2104)}, {track("log0001.nbr", 5)}, {broken}, {}};
    dialogs.openAnswers = {{}};
    commands.fileOpen();

    EXPECT_EQ(listed(), Names{"lote.rpt"});
    EXPECT_EQ(window.title, title);
    EXPECT_EQ(session.map().ranges(), ranges);
    EXPECT_FALSE(session.map().style().graduated);
    EXPECT_EQ(session.colours().drawing.drawAllCaption(), TextId::OnlySprayed)
        << "the preview was sown";
    EXPECT_EQ(session.map().style().mode, ColorMode::Date) << "a track has no dates";
    EXPECT_EQ(session.map().scales().of(false).count(), 3);
    EXPECT_EQ(session.display().view().transform().mapToScreen(-60, -33),
              view.mapToScreen(-60, -33));
    EXPECT_TRUE(dialogs.messages.empty()) << "a preview says nothing";
    EXPECT_TRUE(window.mapActive);
}

TEST_F(FileCommandsTest, ARecentFileThatIsGoneLeavesTheList) {
    const std::string kept = report("lote.rpt");
    const std::string gone = report("borrado.rpt", 1, 2);
    commands.openPaths({kept, gone}, true);
    std::filesystem::remove(nativePath(gone));
    commands.openRecent(gone);
    EXPECT_EQ(dialogs.messages, Names{"Exclamation|Campora|No se encuentra el archivo: " + gone});
    EXPECT_EQ(commands.recentFiles(), Names{kept});
    EXPECT_EQ(session.map().plotCount(), 2) << "what is open stays";
    commands.openRecent(kept);
    EXPECT_EQ(listed(), Names{"lote.rpt"});
}

TEST_F(FileCommandsTest, StepsThroughTheFilesOfTheFolder) {
    commands.stepInFolder(1);
    EXPECT_EQ(session.map().plotCount(), 0) << "nothing open: nowhere to start";
    report("c.rpt", 1, 3);
    report("B.rpt", 1, 2);
    commands.openPaths({report("a.rpt")}, true);
    const std::pair<int, const char*> steps[] = {
        {-1, "a.rpt"}, {1, "B.rpt"}, {1, "c.rpt"}, {1, "c.rpt"}, {-1, "B.rpt"}};
    folder.write("bb.rpt", "roto: no debe cerrar el paso");
    for (const auto& [step, shown] : steps) {
        commands.stepInFolder(step);
        EXPECT_EQ(listed(), Names{shown});
    }
}

TEST_F(FileCommandsTest, AStepLosesNothingUnsavedUnasked) {
    writeLot(folder, "a.lot", squareRing(-60, -34, 1), "");
    writeLot(folder, "b.lot", squareRing(-59.5, -34, 1), "");
    commands.openPaths({folder.file("a.lot"), folder.file("b.lot")}, true);
    session.lotCommands().merge();
    for (const int step : {1, -1}) {
        session.listCommands().selectFile(step > 0 ? 1 : 2);
        dialogs.yesNoAnswers = {false};
        commands.stepInFolder(step);
        EXPECT_EQ(listed(), (Names{"Fusionado", "a.lot", "b.lot"})) << step;
    }
    EXPECT_EQ(dialogs.questions.size(), 2U);
    dialogs.yesNoAnswers = {true};
    commands.stepInFolder(-1);
    EXPECT_EQ(listed(), Names{"a.lot"});
}

TEST_F(FileCommandsTest, ReloadKeepsWhatCannotBeReadAgain) {
    const std::string changed = report("cambia.rpt");
    const std::string broken = report("roto.rpt", 1, 2);
    commands.openPaths({changed, broken}, true);
    session.listCommands().selectFile(1);
    report("cambia.rpt", 5000);
    folder.write("roto.rpt", "x");
    commands.reload();
    EXPECT_EQ(listed(), (Names{"cambia.rpt", "roto.rpt"}));
    EXPECT_EQ(window.selected, 1);
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_NEAR(session.map().ranges().dose->greatest, 502, 0.01);
    EXPECT_EQ(session.map().ranges().dose->least, 0) << "of the one that stayed";
}

TEST_F(FileCommandsTest, CancellingSeveralKeepsThoseThatWereOpened) {
    dialogs.cancelAfter = 2;
    std::vector<std::string> paths{report("a.rpt"), report("b.rpt", 1, 2)};
    for (int i = 1; i <= 22; ++i) {
        paths.push_back(folder.file(std::to_string(i)));
    }
    commands.openPaths(paths, true);
    EXPECT_EQ(listed(), (Names{"a.rpt", "b.rpt"}));
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_TRUE(dialogs.messages[0].starts_with(
        "Information|Campora|Se canceló la apertura. No se abrieron:\n" + paths[2] + "\n"));
    EXPECT_TRUE(dialogs.messages[0].ends_with("\n" + paths[21] + "\n… y 2 más"));
}

TEST_F(FileCommandsTest, SavesTheTrackAndItsSummaryUnderAnotherName) {
    EXPECT_FALSE(commands.canSaveAs());
    const std::string job = track("Log0001.nbr", 10);
    const std::string summary = folder.write("Wrk0001.txt", "\"Dosis:\",\"12\",\"lt\"\r\n");
    commands.openPaths({job}, true);
    ASSERT_TRUE(commands.canSaveAs());

    const std::string target = folder.file("Norte.nbr");
    dialogs.saveAnswers = {{}, {target, 0}};
    commands.saveAs();
    EXPECT_FALSE(std::filesystem::exists(nativePath(target))) << "cancelled";
    commands.saveAs();
    EXPECT_EQ(contentOf(target), contentOf(job));
    EXPECT_EQ(contentOf(folder.file("norte.txt")), contentOf(summary));

    folder.write("norte.txt", "de otro");
    dialogs.saveAnswers = {{target, 0}};
    dialogs.yesNoAnswers = {false};
    commands.saveAs();
    EXPECT_EQ(contentOf(folder.file("norte.txt")), "de otro") << "not replaced unasked";

    const std::string other = folder.write("Log0042.nbr", "de otro");
    dialogs.saveAnswers = {{folder.file("Wrk0042.txt"), 0}};
    commands.saveAs();
    EXPECT_EQ(contentOf(other), "de otro") << "the dialog asked about another name";
    EXPECT_EQ(contentOf(folder.file("Wrk0042.txt.nbr")), contentOf(job));

    dialogs.saveAnswers = {{folder.file("no/such/folder/x.nbr"), 0}};
    commands.saveAs();
    EXPECT_EQ(dialogs.messages.size(), 1U);
}

}  // namespace
}  // namespace campora
