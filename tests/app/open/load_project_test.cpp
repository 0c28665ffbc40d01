// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/load_project.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "app/open/project_file.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Names = std::vector<std::string>;

constexpr const char* kHeader = "*FurrowScope Project File*\r\n";

bool openProject(SessionDesk& desk, const std::string& path) {
    const bool isProject = loadProject(desk.session.map(), path);
    desk.session.display().loadFileList(true);
    return isProject;
}

TEST(ProjectFile, TheFirstLineSaysWhetherItIsOne) {
    const TempFolder folder;
    const std::pair<std::string, bool> rows[] = {
        {"Mi FurrowScope Project File, version 1", true},
        {"\xEF\xBB\xBF"
         "furrowscope project file\r\n",
         true},
        {"furrowscope  project file", false},
        {"furrowscope project\nfile", false},
        {"", false},
    };
    for (const auto& [text, expected] : rows) {
        SCOPED_TRACE(text);
        EXPECT_EQ(decodeProject(text, "").has_value(), expected);
        EXPECT_EQ(isProject(folder.write("lista.rpt", text)), expected);
    }
    EXPECT_FALSE(isProject(folder.path()));
    EXPECT_FALSE(isProject(folder.file("falta.fsp")));
}

TEST(LoadProject, MissingFilesAreNamedAndOthersOpened) {
    SessionDesk desk;
    desk.session.start();
    desk.report("lote.rpt");
    desk.folder.write("carta.doc", "Estimado");
    const std::string folder = desk.folder.path();
    const std::string project = desk.folder.write(
        "campo.fsp", std::string(kHeader) + "\r\n/falta.rpt\r\n/carta.doc\r\n/lote.rpt\r\n");
    EXPECT_TRUE(openProject(desk, project));
    EXPECT_EQ(desk.listed(), Names{"lote.rpt"});
    EXPECT_THAT(
        desk.dialogs.messages,
        ElementsAre("Exclamation|Campora|No se encuentra el archivo: ",
                    "Exclamation|Campora|No se encuentra el archivo: " + folder + "\\/falta.rpt"));
}

TEST(LoadProject, OtherComputersAreAskedAboutOnceBeforeTheyAreTouched) {
    for (const bool yes : {false, true}) {
        SessionDesk desk;
        desk.report("lote.rpt");
        const std::string project = desk.folder.write(
            "campo.fsp", std::string(kHeader) + "\\\\Galpon\\a\\1.rpt\r\n/lote.rpt\r\n"
                                                "\\\\galpon\\b\\2.rpt\r\n");
        desk.session.start();
        desk.dialogs.yesNoAnswers = {yes};
        EXPECT_TRUE(openProject(desk, project));
        EXPECT_EQ(desk.listed(), Names{"lote.rpt"});
        EXPECT_THAT(desk.dialogs.questions,
                    ElementsAre("Question|Campora|" + project +
                                " nombra archivos de otra computadora, galpon.\nSi no está "
                                "conectada, la espera puede ser larga. ¿Buscarlos ahí?"));
        if (yes) {
            EXPECT_EQ(desk.dialogs.messages.size(), 2U) << "one a file that is missing";
        } else {
            EXPECT_THAT(
                desk.dialogs.messages,
                ElementsAre("Exclamation|Campora|Archivos de galpon que no se buscaron: 2"));
        }
    }
}

TEST(LoadProject, ACancelledSearchOpensNothingAndSaysWhatWasLeft) {
    SessionDesk desk;
    desk.report("lote.rpt");
    std::string lines = "/lote.rpt\r\n";
    for (int i = 0; i < 999; ++i) {
        lines += "# falta\r\n/lote.rpt\r\n";
    }
    const std::string project = desk.folder.write("campo.fsp", std::string(kHeader) + lines);
    desk.session.start();
    desk.dialogs.cancelAfter = 2;
    EXPECT_TRUE(openProject(desk, project));
    EXPECT_THAT(desk.listed(), IsEmpty());
    EXPECT_THAT(desk.dialogs.messages,
                ElementsAre("Exclamation|Campora|La apertura del proyecto se canceló. Archivos que "
                            "no se buscaron: 744"));
}

}  // namespace
}  // namespace campora
