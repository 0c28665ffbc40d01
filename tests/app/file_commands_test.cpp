// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/file_commands.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/paths.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

struct CommandDesk : SessionDesk {
    FileCommands commands{session};

    CommandDesk() { session.start(); }
};

std::string contentOf(const std::string& path) {
    const Result<FileBytes> file = readFile(path);
    return file ? std::string(file->text()) : "none";
}

TEST(FileCommands, OpensTheChosenFilesAndRemembersTheirFolder) {
    CommandDesk desk;
    desk.add("viejo");
    desk.settings.values["OpenPath"] = desk.folder.path();
    desk.dialogs.openAnswers = {{}};
    desk.commands.fileOpen();
    EXPECT_EQ(desk.session.plotCount(), 1) << "cancelled";
    ASSERT_EQ(desk.dialogs.opens.size(), 1U);
    EXPECT_EQ(desk.dialogs.opens[0].caption, "Abrir");
    EXPECT_EQ(desk.dialogs.opens[0].folder, desk.folder.path());
    EXPECT_EQ(desk.dialogs.opens[0].filters.front().patterns.front(), "*.rpt");

    desk.dialogs.openAnswers = {{desk.report("lote.rpt"), desk.report("otro.rpt", 1, 2)}};
    desk.commands.fileOpen();
    EXPECT_EQ(desk.listed(), (Names{"lote.rpt", "otro.rpt"}));
    EXPECT_EQ(desk.settings.values["OpenPath"], desk.folder.path() + "/");
    EXPECT_EQ(desk.commands.recentFiles(),
              (Names{desk.folder.file("otro.rpt"), desk.folder.file("lote.rpt")}));

    desk.settings.values["OpenPath"] = "no/such/folder";
    desk.dialogs.openAnswers = {{}};
    desk.commands.fileOpen();
    EXPECT_EQ(desk.dialogs.opens.back().folder, desk.session.programFolder());
}

TEST(FileCommands, CancellingAPreviewPutsEverythingBack) {
    CommandDesk desk;
    desk.session.loadFile(desk.report("lote.rpt"), false, true);
    desk.session.style().graduated = false;
    desk.session.modes().mnuColorDateMap();
    desk.session.tools().setTool(MapTools::Tool::Ruler);
    desk.session.defaultScale().setClassNumber(3);
    desk.session.view().zoomIn();
    const ViewTransform view = desk.session.view().transform();
    const std::string title = desk.window.title;
    const ValueRanges ranges = desk.session.ranges();

    const std::string broken = desk.folder.write("roto.rpt", "no es un reporte");
    desk.dialogs.openSelections = {
        {desk.report("nuevo.rpt", 9000)}, {desk.track("log0001.nbr", 5)}, {broken}, {}};
    desk.dialogs.openAnswers = {{}};
    desk.commands.fileOpen();

    EXPECT_EQ(desk.listed(), Names{"lote.rpt"});
    EXPECT_EQ(desk.window.title, title);
    EXPECT_EQ(desk.session.ranges(), ranges);
    EXPECT_FALSE(desk.session.style().graduated);
    EXPECT_EQ(desk.session.style().mode, ColorMode::Date) << "a track has no dates";
    EXPECT_EQ(desk.session.tools().tool(), MapTools::Tool::Ruler);
    EXPECT_EQ(desk.session.defaultScale().count(), 3);
    EXPECT_EQ(desk.session.view().transform().mapToScreen(-60, -33), view.mapToScreen(-60, -33));
    EXPECT_TRUE(desk.dialogs.messages.empty()) << "a preview says nothing";
    EXPECT_TRUE(desk.window.mapActive);
}

TEST(FileCommands, PreviewOnAnEmptyMapEndsWithAnEmptyMap) {
    CommandDesk desk;
    desk.dialogs.openSelections = {{desk.report("nuevo.rpt")}};
    desk.dialogs.openAnswers = {{}};
    desk.commands.fileOpen();
    EXPECT_EQ(desk.session.plotCount(), 0);
    EXPECT_FALSE(desk.window.mapActive);
    EXPECT_TRUE(desk.window.legend.classes.empty());
}

TEST(FileCommands, ARecentFileThatIsGoneLeavesTheList) {
    CommandDesk desk;
    const std::string kept = desk.report("lote.rpt");
    const std::string gone = desk.report("borrado.rpt", 1, 2);
    desk.commands.openPaths({kept, gone}, true);
    std::filesystem::remove(nativePath(gone));
    desk.commands.openRecent(gone);
    EXPECT_EQ(desk.dialogs.messages,
              Names{"Exclamation|Campora|No se encuentra el archivo: " + gone});
    EXPECT_EQ(desk.commands.recentFiles(), Names{kept});
    EXPECT_EQ(desk.session.plotCount(), 2) << "what is open stays";
    desk.commands.openRecent(kept);
    EXPECT_EQ(desk.listed(), Names{"lote.rpt"});
}

TEST(FileCommands, StepsThroughTheFilesOfTheFolder) {
    CommandDesk desk;
    desk.commands.stepInFolder(1);
    EXPECT_EQ(desk.session.plotCount(), 0) << "nothing open: nowhere to start";
    desk.report("c.rpt", 1, 3);
    desk.report("B.rpt", 1, 2);
    desk.commands.openPaths({desk.report("a.rpt")}, true);
    const std::pair<int, const char*> steps[] = {
        {-1, "a.rpt"}, {1, "B.rpt"}, {1, "c.rpt"}, {1, "c.rpt"}, {-1, "B.rpt"}};
    desk.folder.write("bb.rpt", "roto: no debe cerrar el paso");
    for (const auto& [step, shown] : steps) {
        desk.commands.stepInFolder(step);
        EXPECT_EQ(desk.listed(), Names{shown});
    }
}

TEST(FileCommands, ReloadKeepsWhatCannotBeReadAgain) {
    CommandDesk desk;
    const std::string changed = desk.report("cambia.rpt");
    const std::string broken = desk.report("roto.rpt", 1, 2);
    desk.commands.openPaths({changed, broken}, true);
    desk.session.selectFile(1);
    desk.report("cambia.rpt", 5000);
    desk.folder.write("roto.rpt", "x");
    desk.commands.reload();
    EXPECT_EQ(desk.listed(), (Names{"cambia.rpt", "roto.rpt"}));
    EXPECT_EQ(desk.window.selected, 1);
    EXPECT_EQ(desk.dialogs.messages.size(), 1U);
    EXPECT_NEAR(desk.session.ranges().dose->greatest, 502, 0.01);
    EXPECT_EQ(desk.session.ranges().dose->least, 0) << "of the one that stayed";
}

TEST(FileCommands, CancellingSeveralKeepsThoseThatWereOpened) {
    CommandDesk desk;
    desk.dialogs.cancelAfter = 2;
    desk.commands.openPaths(
        {desk.report("a.rpt"), desk.report("b.rpt", 1, 2), desk.report("c.rpt", 1, 3)}, true);
    EXPECT_EQ(desk.listed(), (Names{"a.rpt", "b.rpt"}));
}

TEST(FileCommands, SavesTheTrackAndItsSummaryUnderAnotherName) {
    CommandDesk desk;
    EXPECT_FALSE(desk.commands.canSaveAs());
    const std::string track = desk.track("Log0001.nbr", 10);
    const std::string summary = desk.folder.write("Wrk0001.txt", "\"Dosis:\",\"12\",\"lt\"\r\n");
    desk.commands.openPaths({track}, true);
    ASSERT_TRUE(desk.commands.canSaveAs());

    const std::string target = desk.folder.file("Norte.nbr");
    desk.dialogs.saveAnswers = {{}, {target, 0}};
    desk.commands.saveAs();
    EXPECT_EQ(contentOf(target), "none") << "cancelled";
    EXPECT_EQ(desk.dialogs.saves[0].caption, "Guardar como...");
    EXPECT_EQ(desk.dialogs.saves[0].filters[0].patterns, Names{"*.nbr"});
    desk.commands.saveAs();
    EXPECT_EQ(contentOf(target), contentOf(track));
    EXPECT_EQ(contentOf(desk.folder.file("norte.txt")), contentOf(summary));

    desk.folder.write("norte.txt", "de otro");
    desk.dialogs.saveAnswers = {{target, 0}};
    desk.dialogs.yesNoAnswers = {false};
    desk.commands.saveAs();
    EXPECT_EQ(contentOf(desk.folder.file("norte.txt")), "de otro") << "not replaced unasked";

    const std::string other = desk.folder.write("Log0042.nbr", "de otro");
    desk.dialogs.saveAnswers = {{desk.folder.file("Wrk0042.txt"), 0}};
    desk.commands.saveAs();
    EXPECT_EQ(contentOf(other), "de otro") << "the dialog asked about another name";
    EXPECT_EQ(contentOf(desk.folder.file("Wrk0042.txt.nbr")), contentOf(track));

    desk.dialogs.saveAnswers = {{desk.folder.file("no/such/folder/x.nbr"), 0}};
    desk.commands.saveAs();
    EXPECT_EQ(desk.dialogs.messages.size(), 1U);
}

}  // namespace
}  // namespace campora
