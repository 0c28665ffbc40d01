// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/session.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

/// A started session on its desk.
struct SessionTest : testing::Test, SessionDesk {
    SessionTest() { session.start(); }
};

TEST(Session, StartsEmptyWithTheUsersSettings) {
    SessionDesk desk(Language::English);
    desk.folder.write("matriculas.txt", "6001:LV-XYZ\r\n");
    desk.settings.values = {{"mapBackcolor", "255"}, {"DrawBorders", "False"}};
    desk.window.mapActive = true;
    desk.session.start();
    EXPECT_EQ(desk.window.title, "Campora 0.1.0");
    EXPECT_FALSE(desk.window.mapActive);
    EXPECT_EQ(desk.canvas.calls(), (Names{"clear 0x0000FF", "refresh"}));
    EXPECT_FALSE(desk.session.map().style().drawBorders);
    EXPECT_EQ(desk.window.legend.reference.front().text, "Background");
    ASSERT_TRUE(desk.open({desk.track("log0001.nbr", 5)}));
    EXPECT_EQ(desk.listed(), Names{"log0001.nbr (LV-XYZ)"});
}

TEST_F(SessionTest, AFileThatIsNotTakenChangesNothing) {
    ASSERT_TRUE(open({report("Lote.rpt")}, true));
    // What the message says; null when there is none.
    const std::tuple<const char*, std::string, const char*> rows[] = {
        {"open already", folder.file("Lote.rpt"), nullptr},
        {"open already in other letters", folder.file("LOTE.RPT"), nullptr},
        {"open already by another way", folder.file("./Lote.rpt"), nullptr},
        {"no reader", folder.write("carta.doc", "Estimado"),
         "|Formato de Archivo incorrecto|El archivo no es compatible: "},
        {"another in capitals", folder.write("lote.KML", "<kml/>"),
         "lote.KML\nSe pueden abrir: .rpt, .txt, .nbr, .shp, .vrt, .lot, .pre, .fsp\n"},
        {"not there", folder.file("otro.rpt"), "otro.rpt: no existe"},
        {"empty", folder.write("vacio.rpt", ""), "Archivo sin puntos: "},
    };
    const ScriptedWindow before = window;
    const ValueRanges ranges = session.map().ranges();
    const float scale = session.display().view().scaleX();
    for (const auto& [name, path, says] : rows) {
        SCOPED_TRACE(name);
        dialogs.messages.clear();
        EXPECT_FALSE(open({path}));
        ASSERT_EQ(dialogs.messages.size(), says == nullptr ? 0U : 1U);
        if (says != nullptr) {
            EXPECT_THAT(dialogs.messages.at(0), testing::HasSubstr(says));
        }
        EXPECT_EQ(window.files, before.files);
        EXPECT_EQ(window.title, before.title);
        EXPECT_EQ(window.legend, before.legend);
        EXPECT_EQ(session.map().ranges(), ranges);
        EXPECT_EQ(session.display().view().scaleX(), scale);
    }
}

TEST_F(SessionTest, RangesAreThoseOfTheOpenFiles) {
    open({report("uno.rpt", 1000)});
    open({report("dos.rpt", 3000)});
    EXPECT_EQ(session.map().ranges().dose, (ValueRange<float>{100, 302}));
    open({track("log0001.nbr", 5)});
    EXPECT_EQ(session.map().ranges().flow, (ValueRange<float>{5, 5}));
    session.listCommands().selectFile(1);
    session.listCommands().removeCurrentFile();
    EXPECT_EQ(session.map().ranges().dose, (ValueRange<float>{100, 102}));
    EXPECT_EQ(session.map().scales().of(false).valueMax(), 102) << "the classes follow";
    while (session.map().plotCount() > 0) {
        session.listCommands().removeCurrentFile();
    }
    EXPECT_EQ(session.map().ranges(), ValueRanges{});
    open({report("tres.rpt", 2000)});
    EXPECT_EQ(session.map().ranges().dose, (ValueRange<float>{200, 202}));
}

TEST_F(SessionTest, TellsWhenNoTrackFileHasRecordsOfStops) {
    open({track("log0001.nbr", 5, 3, "1")});
    EXPECT_EQ(window.workStatus, "No hay registros del comienzo ni detención de la fumigación");
    open({track("log0002.nbr", 0, 3, "2")});
    EXPECT_EQ(window.workStatus, "");
}

TEST(Session, MovesTheCurrentFileAndRedraws) {
    const std::tuple<const char*, int, FileListCommands::Move, Names> rows[] = {
        {"up", 1, FileListCommands::Move::Up, {"b", "a", "c"}},
        {"up at the top", 0, FileListCommands::Move::Up, {"a", "b", "c"}},
        {"down", 1, FileListCommands::Move::Down, {"a", "c", "b"}},
        {"down at the bottom", 2, FileListCommands::Move::Down, {"a", "b", "c"}},
        {"to the top", 2, FileListCommands::Move::Top, {"c", "a", "b"}},
        {"to the bottom", 1, FileListCommands::Move::Bottom, {"a", "c", "b"}},
    };
    for (const auto& [row, current, move, order] : rows) {
        SCOPED_TRACE(row);
        SessionDesk desk;
        desk.session.start();
        for (const char* name : {"a", "b", "c"}) {
            desk.add(name);
        }
        desk.session.listCommands().selectFile(current);
        desk.canvas.forget();
        desk.session.listCommands().moveCurrentFile(move);
        EXPECT_EQ(desk.listed(), order);
        EXPECT_EQ(desk.redraws(), 1U);
        EXPECT_EQ(desk.session.map().files().indexOf(desk.session.map().files().currentFile()),
                  desk.window.selected);
    }
}

}  // namespace
}  // namespace campora
