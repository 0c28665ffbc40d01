// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lots/lot_editor.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "support/lot_files.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Button = MapTools::Button;
using Names = std::vector<std::string>;

/// A lot as large as the map is open; the canvas is 1000 by 500 units.
struct LotEditorTest : testing::Test, SessionDesk {
    static constexpr double kSide = 0.5;

    LotEditorTest() {
        session.start();
        open({writeLot(folder, "campo.lot", squareRing(-60, -34, kSide), "Campo 1")});
        session.listCommands().selectFile(std::nullopt);
    }
    void click(CanvasPoint at) { drag(at, at); }
    void drag(CanvasPoint from, CanvasPoint to, Button button = Button::Left) {
        session.tools().press(button, from);
        session.tools().move(to);
        session.tools().release(button, to);
    }
    /// Vertices as they lie on the canvas.
    [[nodiscard]] std::vector<CanvasPoint> drawn() const {
        const auto ring = window.laid<HandledRing>();
        return ring ? ring->vertices : std::vector<CanvasPoint>();
    }
    void drawTriangle() {
        for (const CanvasPoint at : {CanvasPoint{100, 450}, {900, 450}, {500, 50}}) {
            click(at);
        }
    }

    LotEditor& editor = session.lotEditor();
};

TEST_F(LotEditorTest, AClickAppendsAVertexAndADragMovesTheMap) {
    editor.open();
    EXPECT_EQ(canvas.pointer(), PointerShape::Crosshair);
    drawTriangle();
    EXPECT_EQ(drawn(), (std::vector<CanvasPoint>{{100, 450}, {900, 450}, {500, 50}}));
    EXPECT_EQ(window.laid<MarkFrame>(), (MarkFrame{{500, 50}}));
    session.display().view().zoomIn();
    const auto before = drawn();
    drag({500, 200}, {450, 200});
    EXPECT_EQ(editor.draft().vertices().size(), 3U);
    EXPECT_EQ(drawn().front().x, before.front().x - 50);
    drag({500, 200}, {500, 300});  // straight down: no click either
    EXPECT_EQ(editor.draft().vertices().size(), 3U);
    session.tools().setTool(ToolId::Ruler);
    click({400, 400});
    EXPECT_EQ(editor.draft().vertices().size(), 3U);
}

TEST_F(LotEditorTest, AVertexIsDraggedWithAnyButtonButTheRightOne) {
    editor.open();
    drawTriangle();
    const LonLat first = editor.draft().vertices()[0];
    session.tools().setTool(ToolId::Info);
    drag({105, 445}, {205, 345}, Button::Middle);
    EXPECT_EQ(drawn()[0], (CanvasPoint{200, 350}));
    EXPECT_EQ(session.tools().tool(), ToolId::Info);
    editor.undo();
    EXPECT_EQ(editor.draft().vertices()[0], first);
    // The next release ends the move, whatever its button, and does nothing else.
    session.tools().press(Button::Left, {100, 450});
    session.tools().move({300, 300});
    session.tools().release(Button::Right, {300, 300});
    EXPECT_EQ(session.tools().tool(), ToolId::Info);
    EXPECT_EQ(drawn()[0], (CanvasPoint{300, 300}));
    drag({300, 300}, {400, 400}, Button::Right);
    EXPECT_EQ(drawn()[0], (CanvasPoint{300, 300}));
}

TEST_F(LotEditorTest, ANewVertexIsPulledOutOfTheMiddleOfASide) {
    editor.open();
    click({100, 450});
    click({900, 450});
    EXPECT_EQ(window.laid<HandledRing>()->handles, std::vector<CanvasPoint>({{500, 450}}));
    drag({500, 450}, {520, 100});
    EXPECT_EQ(drawn(), (std::vector<CanvasPoint>{{100, 450}, {520, 100}, {900, 450}}));
    editor.undo();
    EXPECT_EQ(drawn().size(), 2U);
    click({500, 455});
    EXPECT_EQ(drawn()[1], (CanvasPoint{500, 450}));
    EXPECT_TRUE(window.laid<HandledRing>()->handles.empty() ||
                window.laid<HandledRing>()->handles.front().x == 500);
}

TEST_F(LotEditorTest, SavesWithItsNumberAndShowsTheLot) {
    settings.values["LotesPath"] = folder.path();
    const std::string target = folder.file("lote07.lot");
    editor.open();
    drawTriangle();
    editor.setDescription("Maíz\n7");
    dialogs.inputAnswers.push_back(" 7 ");
    dialogs.saveAnswers.push_back({target, 0});
    const float scale = session.display().view().scaleX();
    editor.save();
    EXPECT_TRUE(dialogs.inputs.back().ends_with("|Lote Virtual|1"));
    EXPECT_EQ(dialogs.saves.at(0).name, "lote07.lot");
    EXPECT_EQ(dialogs.saves[0].folder, folder.path());
    EXPECT_EQ(settings.values["LotesPath"], folder.path() + "/");
    EXPECT_TRUE(contentOf(target).starts_with("Ma\xEDz\r\n7_\r\n"));
    EXPECT_EQ(listed(), (Names{"campo.lot", "lote07.lot"}));
    EXPECT_EQ(window.selected, 1);
    EXPECT_EQ(session.display().view().scaleX(), scale);
    EXPECT_FALSE(editor.draft().isChanged());
    EXPECT_EQ(editor.draft().origin().path, target);

    // What is mended goes into the same file and takes the place of what the map showed.
    editor.removeSelected();
    editor.add({-59.9, -33.9});
    editor.saveBack();
    EXPECT_EQ(listed(), (Names{"campo.lot", "lote07.lot"}));
    EXPECT_EQ(decodeLot(contentOf(target)).vertices.back(), (LonLat{-59.9, -33.9}));
    EXPECT_TRUE(dialogs.messages.empty());
    editor.clear();
    EXPECT_EQ(editor.draft().origin().path, "");
    EXPECT_TRUE(editor.close());
    EXPECT_TRUE(dialogs.questions.empty());
}

TEST_F(LotEditorTest, WithoutANumberNothingIsSaved) {
    editor.open();
    drawTriangle();
    for (const char* answer : {"  ", "-1", "100", "7.5", "siete"}) {
        dialogs.inputAnswers.push_back(answer);
        editor.save();
    }
    EXPECT_EQ(dialogs.messages, Names(4, "Exclamation|Lote Virtual|Número de lote inválido"));
    EXPECT_TRUE(dialogs.saves.empty());
    dialogs.inputAnswers.push_back("99");
    dialogs.saveAnswers.push_back({});
    editor.save();
    EXPECT_EQ(dialogs.saves.back().name, "lote99.lot");
    EXPECT_TRUE(editor.draft().isChanged());
    EXPECT_FALSE(settings.values.contains("LotesPath"));
}

TEST_F(LotEditorTest, FewVerticesAndADiskThatFailsAreTold) {
    editor.open();
    click({100, 450});
    click({900, 450});
    const Names tooFew{"Exclamation|Lote Virtual|Un lote necesita al menos tres vértices"};
    editor.save();
    EXPECT_EQ(dialogs.messages, tooFew);
    editor.viewInEarth();
    EXPECT_EQ(dialogs.messages.size(), 2U);
    click({500, 50});
    dialogs.inputAnswers.push_back("1");
    dialogs.saveAnswers.push_back({folder.file("falta/lote01.lot"), 0});
    editor.save();
    EXPECT_EQ(dialogs.messages.size(), 3U);
    EXPECT_TRUE(editor.draft().isChanged());
    EXPECT_EQ(listed(), Names{"campo.lot"});
}

TEST_F(LotEditorTest, AsksBeforeWhatIsNotSavedIsLost) {
    editor.open();
    drawTriangle();
    dialogs.yesNoAnswers = {false};
    EXPECT_FALSE(editor.close());
    EXPECT_TRUE(editor.isOpen());
    dialogs.yesNoAnswers = {false};
    editor.edit(session.map().files().file(0));
    EXPECT_EQ(drawn().size(), 3U);
    dialogs.yesNoAnswers = {true};
    editor.edit(session.map().files().file(0));
    EXPECT_EQ(drawn().size(), 4U);
    EXPECT_TRUE(editor.close());
    EXPECT_EQ(dialogs.questions.size(), 3U);
    click({500, 50});
    EXPECT_FALSE(editor.isOpen());
    EXPECT_EQ(window.laid<HandledRing>(), std::nullopt);
}

TEST_F(LotEditorTest, ADrawingThatWasClearedIsAskedAboutAndComesBackWithItsFile) {
    editor.edit(session.map().files().file(0));
    editor.add({-59.9, -33.9});
    editor.clear();
    EXPECT_EQ(editor.draft().origin().path, "");
    dialogs.yesNoAnswers = {false};
    EXPECT_FALSE(editor.close());
    editor.undo();
    EXPECT_EQ(editor.draft().origin().path, folder.file("campo.lot"));
    editor.saveBack();
    EXPECT_EQ(decodeLot(contentOf(folder.file("campo.lot"))).vertices.size(), 5U);
    EXPECT_EQ(listed(), Names{"campo.lot"});
    EXPECT_TRUE(editor.close());
}

TEST_F(LotEditorTest, HandsADocumentToTheProgramThatShowsIt) {
    for (const char* name :
         {"kmlhead.inc", "kmlheadb.inc", "kmlPolyhead.inc", "kmlPolyend.inc", "kmlend.inc"}) {
        folder.write(name, std::string(name) + "\r\n");
    }
    editor.open();
    editor.add({-58, -34});
    editor.add({-57, -34});
    editor.add({-57, -33.5});
    editor.viewInEarth();
    ASSERT_EQ(shell.opened.size(), 1U);
    EXPECT_EQ(fileNamePart(shell.opened[0]), "Lote Virtual.kml");
    const std::string document = contentOf(shell.opened[0]);
    EXPECT_NE(document.find("-57.,-33.5,50\r\n"), std::string::npos) << document;
    EXPECT_TRUE(dialogs.messages.empty());
    shell.succeeds = false;
    editor.viewInEarth();
    EXPECT_EQ(dialogs.messages.size(), 1U);
    std::filesystem::remove(nativePath(folder.file("kmlend.inc")));
    editor.viewInEarth();
    EXPECT_EQ(dialogs.messages.size(), 2U);
    EXPECT_EQ(shell.opened.size(), 2U);
}

}  // namespace
}  // namespace campora
