// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/export_commands.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

/// Place of a format in the save dialog.
int filterOf(std::string_view word) {
    return static_cast<int>(exportFormatOf(word) - exportFormats().data());
}

struct ExportCommandsTest : testing::Test, SessionDesk {
    ExportCommandsTest() {
        session.start();
        for (const char* name :
             {"kmlhead.inc", "kmlheadb.inc", "kmlPolyhead.inc", "kmlPolyend.inc", "kmlend.inc"}) {
            folder.write("kml/" + std::string(name), "-");
        }
    }
    void openReport() {
        ASSERT_TRUE(open({report("Lote 3.5 norte.rpt")}));
        before = filesIn();
    }
    /// The names of the files in the folder.
    [[nodiscard]] std::set<std::string> filesIn() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            names.insert(pathText(entry.path().filename()));
        }
        return names;
    }
    /// Those that were not there before.
    [[nodiscard]] std::set<std::string> made() const {
        std::set<std::string> names = filesIn();
        std::erase_if(names, [this](const std::string& name) { return before.contains(name); });
        return names;
    }
    void exportTo(std::string_view name, std::string_view word) {
        dialogs.saveAnswers = {{name.empty() ? "" : folder.file(name), filterOf(word)}};
        commands.mnuFileExport();
    }

    ExportCommands& commands = session.exportCommands();
    std::set<std::string> before;
};

TEST_F(ExportCommandsTest, TheChosenFormatDecidesWhatIsWrittenAndUnderWhichName) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"campo.shp", ".shp", "campo.shp"},   {"CAMPO.SHP", ".shp", "CAMPO.SHP"},
        {"lote 3.5", ".shp", "lote 3.5.shp"}, {".txt", ".txt", ".txt"},
        {".shp", ".txt", ".shp.txt"},         {"campo/", ".txt", "campo/"},
    };
    for (const auto& [path, ending, written] : rows) {
        EXPECT_EQ(pathForFormat(path, ending), written);
    }
    openReport();
    exportTo("Ca\u00f1ada & \"Sur\".kml", "shp-gis");
    EXPECT_EQ(made().size(), 5U);
    EXPECT_TRUE(made().contains("Ca\u00f1ada & \"Sur\".prj"));
    EXPECT_EQ(dialogs.messages, Names{});
    EXPECT_EQ(settings.values["ExportPath"], folder.path() + "/");
}

TEST_F(ExportCommandsTest, AnotherNameThanTheOneChosenIsNotOverwrittenUnasked) {
    openReport();
    folder.write("campo.txt", "old");
    dialogs.yesNoAnswers = {false};
    exportTo("campo", "txt");
    EXPECT_EQ(contentOf(folder.file("campo.txt")), "old");
    EXPECT_EQ(settings.values.count("ExportPath"), 0U);
    exportTo("campo.txt", "txt");  // the dialog itself has asked
    EXPECT_NE(contentOf(folder.file("campo.txt")), "old");
}

TEST_F(ExportCommandsTest, WhatWasWrittenIsOpenedAndADocumentWhenTheUserWantsIt) {
    openReport();
    dialogs.yesNoAnswers = {false, true, true};
    exportTo("a.kml", "kml");
    EXPECT_EQ(dialogs.questions, Names{"Question|Campora|Desea abrir el archivo exportado?\r\n"
                                       "Debe tener Google Earth instalado.\n" +
                                       folder.file("a.kml")});
    exportTo("b.kml", "kml");
    exportTo("c.txt", "txt");
    EXPECT_EQ(shell.opened, (Names{folder.file("b.kml"), folder.file("c.txt")}));
    EXPECT_EQ(dialogs.questions.size(), 2U);
    shell.succeeds = false;
    exportTo("d.kml", "kml");
    EXPECT_EQ(dialogs.messages, Names{"Exclamation|Campora|El archivo se export\u00f3, pero el "
                                      "sistema no pudo abrirlo: " +
                                      folder.file("d.kml")});
}

TEST_F(ExportCommandsTest, AnExportThatFailsGivesAMessageAndNoFile) {
    openReport();
    exportTo("gone/b.txt", "txt");
    session.listCommands().removeCurrentFile();
    add("bare");
    for (const char* word : {"shp-point", "kml", "geojson"}) {
        exportTo("a", word);
    }
    ASSERT_EQ(dialogs.messages.size(), 1U + 3U);
    for (const std::string& message : dialogs.messages) {
        EXPECT_TRUE(message.starts_with("Exclamation|Campora|Error al exportar el archivo\r\n"));
    }
    EXPECT_EQ(made().size(), 0U);
    EXPECT_EQ(shell.opened, Names{});
}

TEST_F(ExportCommandsTest, APictureIsWhatTheMapShows) {
    openReport();
    canvas.forget();
    commands.copyImage();
    EXPECT_EQ(clipboard.picture.width, 1);
    EXPECT_EQ(canvas.callsOf("text").size(), 1U) << "the scale bar";
    EXPECT_EQ(canvas.callsOf("paint").back(), "paint snapshot: (0,0)") << "as it was";
}

TEST_F(ExportCommandsTest, AReportBecomesATextBesideTheMap) {
    const std::string path = report("Lote.RPT");
    dialogs.openAnswers = {{path}, {folder.write("roto.rpt", "no es un informe")}};
    dialogs.saveAnswers = {{folder.file("salida.txt"), 1}};
    commands.mnuFileExportRpt();
    EXPECT_EQ(dialogs.saves.at(0).name, "Lote.txt");
    EXPECT_EQ(shell.opened, Names{folder.file("salida.txt")});
    EXPECT_EQ(session.map().plotCount(), 0);
    const std::string text = contentOf(folder.file("salida.txt"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 4);
    EXPECT_EQ(text.find('.'), std::string::npos) << "in data lines every point is a comma";

    commands.mnuFileExportRpt();
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.saves.size(), 1U) << "refused before a target is asked for";
}

TEST_F(ExportCommandsTest, GlgHoldsThePointsOfAllTracksInOrder) {
    EXPECT_FALSE(commands.canExportGlg());
    EXPECT_FALSE(MapExport(session.map(), {}).exportGlg(folder.file("nada.glg")));
    EXPECT_EQ(dialogs.messages.size(), 1U);
    openReport();
    ASSERT_TRUE(open({track("log1.nbr", 50)}));
    EXPECT_TRUE(commands.canExportGlg());
    dialogs.saveAnswers = {{folder.file("puntos"), 0}};
    commands.exportGlg();
    const std::string bytes = contentOf(folder.file("puntos.glg"));
    ASSERT_EQ(bytes.size(), 6U * 8U);
    // The logger's first point, 31.5 south and 60.5 west, comes after the three of the report.
    EXPECT_EQ(bytes.substr(24, 8), std::string("\x26\x5F\x46\x80\x86\x28\x87\x80", 8));
}

}  // namespace
}  // namespace campora
