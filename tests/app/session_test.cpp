// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/session.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

TEST(Session, StartsEmptyWithTheUsersSettings) {
    SessionDesk desk(Language::English);
    desk.folder.write("matriculas.txt", "6001:LV-XYZ\r\n");
    desk.settings.values = {{"mapBackcolor", "255"}, {"DrawBorders", "False"}};
    desk.window.mapActive = true;
    desk.session.start();
    EXPECT_EQ(desk.window.title, "Campora 0.1.0");
    EXPECT_FALSE(desk.window.mapActive);
    EXPECT_EQ(desk.canvas.calls(), (Names{"clear 0x0000FF", "refresh"}));
    EXPECT_FALSE(desk.session.style().drawBorders);
    EXPECT_EQ(desk.window.legend.reference.front().text, "Sprayed");
    ASSERT_TRUE(desk.session.loadFile(desk.track("log0001.nbr", 5), false, true));
    EXPECT_EQ(desk.listed(), Names{"log0001.nbr (LV-XYZ)"});
}

TEST(Session, ALoadedReportIsListedDrawnAndSummedUp) {
    SessionDesk desk;
    desk.session.start();
    desk.canvas.forget();
    desk.session.style().graduated = false;
    ASSERT_TRUE(desk.session.loadFile(desk.report("Lote 3.RPT"), true, true));
    EXPECT_EQ(desk.window.files, (std::vector<FileListRow>{{"Lote 3.RPT", "rptfile"}}));
    EXPECT_EQ(desk.window.selected, 0);
    EXPECT_EQ(desk.window.summary.front(), (SummaryRow{"Nombre Archivo:", "Lote 3.RPT "}));
    EXPECT_TRUE(desk.window.title.ends_with("lote 3.rpt]")) << desk.window.title;
    EXPECT_TRUE(desk.window.mapActive);
    EXPECT_TRUE(desk.session.style().graduated);
    EXPECT_EQ(desk.window.legend.unit, "lt/hect");
    ASSERT_EQ(desk.window.legend.classes.size(), 5U);
    EXPECT_EQ(desk.window.legend.classes.front().text, "100 - 100.4");
    EXPECT_EQ(desk.window.legend.classes.back().text, "101.6 - 102");
    EXPECT_EQ(desk.canvas.rings().size(), 2U);
    EXPECT_EQ(desk.redraws(), 2U) << "one for the empty map, one for the whole";
    EXPECT_FALSE(desk.window.view.scaleLabel.empty());
}

TEST(Session, AFileThatIsNotTakenChangesNothing) {
    struct Row {
        const char* name;
        std::string path;
        const char* says;  ///< a part of the message; null when there is none
    };
    SessionDesk desk;
    desk.session.start();
    ASSERT_TRUE(desk.session.loadFile(desk.report("Lote.rpt"), true, true));
    const Row rows[] = {
        {"open already", desk.folder.file("Lote.rpt"), nullptr},
        {"open already in other letters", desk.folder.file("LOTE.RPT"), nullptr},
        {"no reader", desk.folder.write("carta.doc", "Estimado"),
         "|Formato de Archivo incorrecto|El archivo no es compatible: "},
        {"not there", desk.folder.file("otro.rpt"), "otro.rpt: no existe"},
        {"empty", desk.folder.write("vacio.rpt", ""), "Archivo sin puntos: "},
        {"no track file", desk.folder.write("log0002.nbr", "hola\r\n"),
         "|El archivo no es compatible"},
    };
    const ScriptedWindow before = desk.window;
    const ValueRanges ranges = desk.session.ranges();
    const float scale = desk.session.view().scaleX();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        desk.dialogs.messages.clear();
        EXPECT_FALSE(desk.session.loadFile(row.path, false, true));
        ASSERT_EQ(desk.dialogs.messages.size(), row.says == nullptr ? 0U : 1U);
        if (row.says != nullptr) {
            EXPECT_THAT(desk.dialogs.messages.front(), testing::HasSubstr(row.says));
        }
        EXPECT_EQ(desk.window.files, before.files);
        EXPECT_EQ(desk.window.title, before.title);
        EXPECT_EQ(desk.window.legend, before.legend);
        EXPECT_EQ(desk.session.ranges(), ranges);
        EXPECT_EQ(desk.session.view().scaleX(), scale);
    }
}

TEST(Session, OpensAFileWhoseNameDiffersInCase) {
    SessionDesk desk;
    desk.session.start();
    desk.report("LOTE.RPT");
    EXPECT_TRUE(desk.session.loadFile(desk.folder.file("lote.rpt"), false, true));
    EXPECT_FALSE(desk.session.loadFile(desk.folder.file("Lote.rpt"), false, true));
}

TEST(Session, OpeningInPlaceOfTheOthersForgetsThemFirst) {
    SessionDesk desk;
    desk.session.start();
    ASSERT_TRUE(desk.session.loadFile(desk.report("uno.rpt", 1000), true, true));
    ASSERT_TRUE(desk.session.loadFile(desk.report("dos.rpt", 3000), true, true));
    EXPECT_EQ(desk.listed(), Names{"dos.rpt"});
    EXPECT_EQ(desk.session.ranges().dose, (ValueRange<float>{300, 302}));
    EXPECT_FALSE(desk.session.loadFile("otro.rpt", true, true));
    EXPECT_FALSE(desk.session.loadFile(desk.folder.write("vacio.rpt", ""), true, true));
    EXPECT_EQ(desk.listed(), Names{"dos.rpt"}) << "a refused file costs nothing";
    desk.session.removeCurrentFile();
    EXPECT_EQ(desk.window.legend.classes.size(), 0U) << "nothing is left to explain";
}

TEST(Session, OneFileUnderTwoSpellingsOpensOnce) {
    SessionDesk desk;
    desk.session.start();
    EXPECT_TRUE(desk.session.loadFile(desk.report("uno.rpt"), true, true));
    EXPECT_FALSE(desk.session.loadFile(desk.folder.file("./uno.rpt"), false, true));
}

TEST(Session, SeveralFilesAreDrawnOnce) {
    SessionDesk desk;
    desk.session.start();
    desk.add("viejo");
    desk.canvas.forget();
    const Names paths = {desk.report("uno.rpt"), "falta.rpt", desk.report("dos.rpt")};
    EXPECT_EQ(desk.session.loadFiles(paths, true).size(), 2U);
    EXPECT_EQ(desk.listed(), (Names{"uno.rpt", "dos.rpt"}));
    EXPECT_EQ(desk.window.selected, 0);
    EXPECT_EQ(desk.redraws(), 2U) << "one for the empty map, one for both";
}

TEST(Session, RangesGrowWithEveryFileAndStartAnewOnAnEmptyMap) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.report("uno.rpt", 1000), false, true);
    desk.session.loadFile(desk.report("dos.rpt", 3000), false, true);
    EXPECT_EQ(desk.session.ranges().dose, (ValueRange<float>{100, 302}));
    desk.session.loadFile(desk.track("log0001.nbr", 5), false, true);
    EXPECT_EQ(desk.session.ranges().flow, (ValueRange<float>{5, 5}));
    while (desk.session.plotCount() > 0) {
        desk.session.removeCurrentFile();
    }
    EXPECT_EQ(desk.session.ranges(), ValueRanges{});
    desk.session.loadFile(desk.report("tres.rpt", 2000), false, true);
    EXPECT_EQ(desk.session.ranges().dose, (ValueRange<float>{200, 202}));
}

TEST(Session, ARefusedDuplicateLeavesTheRangesAlone) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.track("log0001.nbr", 5, 4), false, true);
    desk.dialogs.yesNoAnswers = {false};
    EXPECT_FALSE(desk.session.loadFile(desk.track("log0002.nbr", 50, 3), false, true));
    EXPECT_EQ(desk.dialogs.questions.size(), 1U);
    EXPECT_EQ(desk.session.ranges().flow, (ValueRange<float>{5, 5}));
    EXPECT_EQ(desk.session.plotCount(), 1);
}

TEST(Session, AMoreCompleteCopyTakesThePlaceOnTheMap) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.track("log0001.nbr", 5, 3), false, true);
    TrackText text;
    text.west = "61";
    for (const std::uint32_t west : {0U, 100U, 200U, 300U}) {
        text.addPoint(west, 0, 5, 20);
    }
    desk.dialogs.yesNoAnswers = {false};
    EXPECT_TRUE(desk.session.loadFile(desk.folder.write("log0002.nbr", text.bytes()), false, true));
    EXPECT_EQ(desk.listed(), Names{"log0002.nbr"});
    EXPECT_TRUE(desk.session.view().totalBound.equals(desk.session.files().file(0).File_bound()));
}

TEST(Session, NoRangeBeginsBelowZero) {
    SessionDesk desk;
    desk.session.start();
    ASSERT_TRUE(desk.session.loadFile(desk.report("raro.rpt", -500), false, true));
    EXPECT_EQ(desk.session.ranges().dose->least, 0);
    EXPECT_EQ(desk.session.defaultScale().count(), 1);
}

TEST(Session, TellsWhenATrackFileHasNoRecordOfStops) {
    const std::string remark = "No hay registros del comienzo ni detención de la fumigación";
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.track("log0001.nbr", 5, 3, "1"), false, true);
    EXPECT_EQ(desk.window.workStatus, remark);
    desk.session.loadFile(desk.track("log0002.nbr", 0, 3, "2"), false, true);
    EXPECT_EQ(desk.window.workStatus, "");
    desk.session.loadFile(desk.track("log0003.nbr", 5, 3, "3"), false, true);
    EXPECT_EQ(desk.window.workStatus, "") << "one of the open files has them";
    desk.session.loadFile(desk.track("log0004.nbr", 5, 3, "4"), true, true);
    EXPECT_EQ(desk.window.workStatus, remark);
    desk.session.loadFile(desk.report("lote.rpt"), true, true);
    EXPECT_EQ(desk.window.workStatus, "") << "reports have no flow";
}

TEST(Session, TheFirstFileLiesOnTop) {
    SessionDesk desk;
    desk.session.start();
    desk.add("a");
    desk.add("b");
    desk.session.addFile(std::make_unique<NamedFile>("c"), true, true);
    desk.canvas.forget();
    desk.session.view().ZoomUno();
    EXPECT_EQ(desk.drawn(), "b1 b2 a1 a2 c1 c2 ");
    std::vector<Gph*> expected;
    for (const int i : {0, 1, 2}) {
        const auto layers = desk.session.files().file(i).File_gphList();
        expected.insert(expected.end(), layers.begin(), layers.end());
    }
    EXPECT_EQ(desk.session.getGphList(), expected);
}

TEST(Session, TheViewFollowsAddedFiles) {
    SessionDesk desk;
    desk.session.start();
    EXPECT_FALSE(desk.session.addFile(nullptr, true, false));
    desk.add("a", -60);
    EXPECT_TRUE(desk.session.view().transform().isFitted());
    EXPECT_TRUE(desk.session.view().totalBound.equals(desk.session.files().file(0).File_bound()));
    desk.add("b", -61);
    EXPECT_EQ(desk.session.view().totalBound.minX, -61);
    desk.session.addFile(std::make_unique<NamedFile>("c", -62), false, false);
    EXPECT_EQ(desk.session.view().totalBound.minX, -61) << "not asked to";
    auto without = std::make_unique<NamedFile>("sin puntos");
    without->bound = {};
    desk.session.addFile(std::move(without), true, false);
    EXPECT_EQ(desk.session.view().totalBound.maxX, -60 + 0.01) << "a file without points";
    EXPECT_TRUE(desk.session.recalcGphBound());
    EXPECT_EQ(desk.session.view().totalBound.minX, -62);
    EXPECT_FALSE(desk.session.recalcGphBound());
}

TEST(Session, TheWindowFollowsTheSelection) {
    SessionDesk desk;
    desk.session.start();
    desk.add("a").icon = "ruler";
    desk.addScale(desk.add("b"), 7);
    desk.session.selectFile(1);
    EXPECT_EQ(desk.window.title, "Campora - [.../campo/b]");
    EXPECT_EQ(desk.window.summary,
              (std::vector<SummaryRow>{{"Nombre:", "b "}, {"Área:", "12.5 Has"}}));
    EXPECT_EQ(desk.window.legend.classes.front().text, "0 - 7");
    desk.session.selectFile(2);
    desk.session.selectFile(-1);
    EXPECT_EQ(desk.window.summary.front().value, "b ") << "no such row";
    desk.session.selectFile(0);
    EXPECT_EQ(desk.window.legend.classes.size(), 6U);
    desk.session.selectFile(std::nullopt);
    EXPECT_EQ(desk.session.files().currentFile(), nullptr);
    EXPECT_TRUE(desk.window.summary.empty());
    desk.session.loadFileList(true);
    EXPECT_EQ(desk.window.selected, std::nullopt);
    EXPECT_EQ(desk.window.files, (std::vector<FileListRow>{{"a", "ruler"}, {"b", "copy"}}));
}

TEST(Session, MovesTheCurrentFileAndRedraws) {
    struct Row {
        const char* name;
        int selected;
        Session::Move move;
        Names order;
    };
    const Row rows[] = {
        {"up", 1, Session::Move::Up, {"b", "a", "c"}},
        {"up at the top", 0, Session::Move::Up, {"a", "b", "c"}},
        {"down", 1, Session::Move::Down, {"a", "c", "b"}},
        {"to the top", 2, Session::Move::Top, {"c", "a", "b"}},
        {"to the bottom", 0, Session::Move::Bottom, {"b", "c", "a"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        SessionDesk desk;
        desk.session.start();
        for (const char* name : {"a", "b", "c"}) {
            desk.add(name);
        }
        desk.session.selectFile(row.selected);
        desk.canvas.forget();
        desk.session.moveCurrentFile(row.move);
        EXPECT_EQ(desk.listed(), row.order);
        EXPECT_EQ(desk.redraws(), 1U);
        EXPECT_EQ(desk.session.files().indexOf(desk.session.files().currentFile()),
                  desk.window.selected);
    }
}

TEST(Session, RemovingAFileLeavesItsNeighbourCurrent) {
    SessionDesk desk;
    desk.session.start();
    desk.add("a", -60);
    desk.addScale(desk.add("b", -61), 7);
    desk.add("c", -60);
    desk.session.view().ZoomUno();
    const float scale = desk.session.view().scaleX();
    desk.session.selectFile(1);
    desk.session.removeCurrentFile();
    EXPECT_EQ(desk.listed(), (Names{"a", "c"}));
    EXPECT_EQ(desk.window.selected, 1);
    EXPECT_EQ(desk.window.title, "Campora - [.../campo/c]");
    EXPECT_EQ(desk.window.legend.classes.size(), 6U) << "the scale went with its file";
    EXPECT_LT(desk.session.view().scaleX(), scale) << "the map is smaller now";
    desk.canvas.forget();
    desk.session.removeCurrentFile();
    EXPECT_EQ(desk.window.title, "Campora - [.../campo/a]");
    EXPECT_EQ(desk.drawn(), "a1 a2 ") << "same extent: drawn again as it stands";
    desk.session.removeFile(nullptr);
    EXPECT_EQ(desk.session.plotCount(), 1);
}

TEST(Session, WithoutFilesTheMapIsEmpty) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.report("lote.rpt"), true, true);
    desk.canvas.forget();
    desk.session.removeCurrentFile();
    EXPECT_EQ(desk.canvas.calls(), (Names{"clear 0xFFFFFF", "refresh"}));
    EXPECT_EQ(desk.window.title, "Campora 0.1.0");
    EXPECT_TRUE(desk.window.files.empty());
    EXPECT_TRUE(desk.window.summary.empty());
    EXPECT_FALSE(desk.window.mapActive);
    EXPECT_EQ(desk.window.view, ViewControls{});
    EXPECT_FALSE(desk.session.view().transform().isFitted());
}

TEST(Session, CommandsWithoutACurrentFileDoNothing) {
    SessionDesk desk;
    desk.session.start();
    desk.canvas.forget();
    desk.session.zoomToCurrentFile();
    desk.session.moveCurrentFile(Session::Move::Up);
    desk.session.removeCurrentFile();
    desk.session.copyData();
    desk.session.recalcErrorAreas();
    desk.session.setTitle(false);
    EXPECT_TRUE(desk.canvas.calls().empty());
    EXPECT_EQ(desk.window.title, "Campora 0.1.0");
    EXPECT_EQ(desk.clipboard.text, "");
    desk.session.setTitle(true);
    EXPECT_EQ(desk.window.title, "Campora - [Untitled]");
}

TEST(Session, ZoomsToTheCurrentFile) {
    SessionDesk desk;
    desk.session.start();
    desk.add("a", -60);
    desk.add("b", -61);
    desk.session.view().ZoomUno();
    desk.session.selectFile(1);
    desk.session.zoomToCurrentFile();
    const LonLat middle = desk.session.view().transform().screenToMap(500, 250);
    EXPECT_NEAR(middle.x, -60.995, 0.001);
    EXPECT_NEAR(middle.y, -32.995, 0.001);
}

TEST(Session, APreviewPutsEverythingBack) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.track("log0001.nbr", 0, 3, "1"), false, true);
    desk.add("b", -61);
    desk.session.selectFile(1);
    desk.session.loadFileList(true);
    const ScriptedWindow before = desk.window;
    const ValueRanges ranges = desk.session.ranges();
    const BoundingBox bound = desk.session.view().totalBound;

    desk.session.plotPreview(true, false);
    EXPECT_EQ(desk.session.plotCount(), 0);
    ASSERT_TRUE(desk.session.loadFile(desk.track("log0002.nbr", 90, 3, "2"), false, true));
    EXPECT_EQ(desk.session.ranges().flow, (ValueRange<float>{90, 90}));
    EXPECT_NE(desk.window.title, before.title);
    EXPECT_NE(desk.window.workStatus, before.workStatus);

    desk.session.plotPreview(false, true);
    EXPECT_EQ(desk.window.title, before.title);
    EXPECT_EQ(desk.window.files, before.files);
    EXPECT_EQ(desk.window.selected, before.selected);
    EXPECT_EQ(desk.window.summary, before.summary);
    EXPECT_EQ(desk.window.workStatus, before.workStatus);
    EXPECT_EQ(desk.session.ranges(), ranges);
    EXPECT_TRUE(desk.session.view().totalBound.equals(bound));
    desk.session.plotPreview(false, true);
    EXPECT_EQ(desk.session.plotCount(), 2) << "nothing to bring back";
}

TEST(Session, APreviewOverAnEmptyMapEndsInAnEmptyMap) {
    SessionDesk desk;
    desk.session.start();
    desk.session.plotPreview(true, false);
    desk.session.loadFile(desk.report("lote.rpt"), false, true);
    desk.session.plotPreview(false, true);
    EXPECT_EQ(desk.session.plotCount(), 0);
    EXPECT_EQ(desk.window.title, "Campora 0.1.0");
    EXPECT_EQ(desk.session.ranges(), ValueRanges{});
}

TEST(Session, InformationOnAPointSelectsItsFile) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFiles({desk.report("uno.rpt"), desk.track("log0001.nbr", 5)}, true);
    desk.session.selectFile(1);
    desk.session.loadFileList(true);
    desk.session.tools().setTool(MapTools::Tool::Info);
    const CanvasPoint middle{desk.canvas.size().width / 2, desk.canvas.size().height / 2};
    desk.session.view().zoomToBox(desk.session.files().file(0).File_bound());
    desk.session.tools().press(MapTools::Button::Left, middle);
    desk.session.tools().release(MapTools::Button::Left, middle);
    ASSERT_TRUE(desk.window.overlay.info.has_value());
    EXPECT_EQ(desk.window.selected, 0);
}

TEST(Session, TheDateMapLeavesWithTheLastDate) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFiles({desk.report("uno.rpt"), desk.track("log0001.nbr", 5)}, true);
    desk.session.modes().mnuColorDateMap();
    desk.session.selectFile(0);
    desk.session.removeCurrentFile();
    EXPECT_EQ(desk.session.style().mode, ColorMode::Dose);
    EXPECT_FALSE(desk.session.defaultScale().isDate);
}

TEST(Session, CopiesTheSummaryAsLines) {
    SessionDesk desk;
    desk.session.start();
    desk.add("a");
    desk.session.copyData();
    EXPECT_EQ(desk.clipboard.text, "Nombre: a \r\nÁrea: 12.5 Has\r\n");
}

TEST(Session, AnotherCanvasSizeFitsTheMapAgain) {
    SessionDesk desk;
    desk.session.start();
    desk.add("a");
    desk.session.view().ZoomUno();
    const std::int32_t margin = desk.session.view().marginX();
    desk.canvas.resize({4000, 500});
    desk.canvas.forget();
    desk.session.canvasResized();
    EXPECT_GT(desk.session.view().marginX(), margin);
    EXPECT_EQ(desk.redraws(), 1U);
    desk.session.reset();
    desk.canvas.forget();
    desk.session.canvasResized();
    EXPECT_EQ(desk.canvas.calls(), (Names{"clear 0xFFFFFF", "refresh"}));
}

TEST(Session, AChangedScaleIsShownAndDrawn) {
    SessionDesk desk;
    desk.session.start();
    NamedFile& file = desk.add("a");
    desk.canvas.forget();
    desk.session.defaultScale().setClassColor(0, {0x123456});
    EXPECT_EQ(desk.window.legend.classes.front().color, Color{0x123456});
    EXPECT_EQ(desk.redraws(), 1U);

    desk.addScale(file, 7);
    desk.session.selectFile(0);
    desk.session.defaultScale().addClass();
    EXPECT_EQ(desk.redraws(), 1U) << "not the scale in the legend";
    file.scale->setClassNumber(2);
    EXPECT_EQ(desk.redraws(), 2U);
    EXPECT_EQ(desk.window.legend.classes.size(), 2U);
}

TEST(Session, TheDateMapIsLeftWhenNothingHasADate) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.track("log0001.nbr", 5), false, true);
    desk.session.style().mode = ColorMode::Date;
    desk.session.refreshColorScale();
    EXPECT_EQ(desk.session.style().mode, ColorMode::Dose);
    desk.session.loadFile(desk.report("lote.rpt"), false, true);
    desk.session.style().mode = ColorMode::Date;
    desk.session.refreshColorScale();
    EXPECT_EQ(desk.session.style().mode, ColorMode::Date);
    ASSERT_EQ(desk.window.legend.classes.size(), 1U);
    EXPECT_EQ(desk.window.legend.classes.front().text, "05/03/2018");
}

TEST(Session, TheErrorMapTellsItsHectares) {
    SessionDesk desk;
    desk.session.start();
    desk.session.loadFile(desk.report("lote.rpt", 1500), false, true);
    desk.session.style().mode = ColorMode::Error;
    desk.session.recalcErrorAreas();
    const SummaryRow shown = desk.window.summary.back();
    EXPECT_EQ(shown.property, "Hectareas Error");
    EXPECT_EQ(shown.value, "0.04 Has");  // two steps of 10 m, 20 m wide
    desk.session.style().mode = ColorMode::Dose;
    desk.session.recalcErrorAreas();
    EXPECT_EQ(desk.window.summary.back(), (SummaryRow{"Hectareas Error", " "}));
}

}  // namespace
}  // namespace campora
