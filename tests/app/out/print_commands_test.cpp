// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/print_commands.h"

#include <filesystem>

#include <gmock/gmock.h>

#include "app/settings.h"
#include "base/files.h"
#include "base/paths.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

double halfEach(std::string_view text, PageFont font) {
    return static_cast<double>(text.size()) * font.emMm / 2;
}

struct PrintDesk : SessionDesk {
    PrintCommands print{session.map(), session.display(), session.services()};

    /// What the program says when the page goes to that path.
    std::string saved(const std::string& path, const Result<std::string>& pdf) {
        dialogs.saveAnswers.push_back({path});
        dialogs.messages.clear();
        print.savePdf([&] { return pdf; });
        return dialogs.messages.empty() ? "" : dialogs.messages.back();
    }
};

TEST(PrintCommands, DrawingCanBeCancelled) {
    PrintDesk desk;
    desk.add("a");
    const auto progress = desk.dialogs.progress("x");
    const PageLayout page = desk.print.page(halfEach);
    RecordingCanvas whole(desk.print.mapCanvas(page));
    EXPECT_TRUE(desk.print.drawMap(page, whole, progress.get()));
    desk.dialogs.cancelAfter = 4;
    RecordingCanvas paper(desk.print.mapCanvas(page));
    EXPECT_FALSE(desk.print.drawMap(page, paper, progress.get()));
    EXPECT_EQ(paper.callsOf("text").size(), 1U);
}

TEST(PrintCommands, WritesThePdfWhereTheUserSaysAndOffersToOpenIt) {
    PrintDesk desk;
    desk.add("uno.rpt");
    const std::string path = desk.folder.file("página.pdf");
    desk.dialogs.yesNoAnswers = {true, false, true};
    EXPECT_EQ(desk.saved(path, std::string("%PDF")), "");
    EXPECT_EQ(readFile(path)->text(), "%PDF");
    EXPECT_EQ(desk.dialogs.saves.back().name, "uno.pdf");
    EXPECT_THAT(desk.shell.opened, ElementsAre(path));

    EXPECT_EQ(desk.saved(path, std::string("%PDF-2")), "");
    EXPECT_EQ(desk.dialogs.saves.back().folder, folderPart(path));
    EXPECT_EQ(desk.shell.opened.size(), 1U);
    desk.shell.succeeds = false;
    EXPECT_THAT(desk.saved(path, std::string("%PDF")), HasSubstr("Ningún programa pudo abrir"));
}

TEST(PrintCommands, AFailureIsReportedAndLeavesNothing) {
    PrintDesk desk;
    desk.add("uno.rpt");
    const std::string large = desk.folder.file("grande.pdf");
    EXPECT_THAT(desk.saved(desk.folder.file("no/hay.pdf"), std::string("%PDF")),
                HasSubstr("hay.pdf"));
    EXPECT_THAT(desk.saved(large, Failure{TextId::PageTooLarge, {}}), HasSubstr("memoria"));
    EXPECT_EQ(desk.saved("", std::string("%PDF")), "");
    EXPECT_EQ(desk.saved(desk.folder.file("cancelado.pdf"), std::string()), "");
    EXPECT_FALSE(std::filesystem::exists(nativePath(desk.folder.file("cancelado.pdf"))));
    EXPECT_FALSE(std::filesystem::exists(nativePath(large)));
    EXPECT_THAT(desk.dialogs.questions, IsEmpty());
}

}  // namespace
}  // namespace campora
