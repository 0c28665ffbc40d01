// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/files_behind.h"

#include <gmock/gmock.h>

#include "base/paths.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using testing::ElementsAre;

std::vector<std::string> names(const std::vector<std::string>& paths) {
    std::vector<std::string> result;
    for (const std::string& path : paths) {
        result.emplace_back(fileNamePart(path));
    }
    return result;
}

TEST(FilesBehind, FolderStandsForItsFilesInNameOrder) {
    const TempFolder folder;
    for (const char* name : {"Lote 2.rpt", "lote 10.RPT", "lote 1.nbr", "Campo.txt", "leeme.doc",
                             "Lote 2.rpt.campora.json", "junio/viejo.rpt"}) {
        folder.write(name, "x");
    }
    EXPECT_THAT(names(filesBehind(folder.path())),
                ElementsAre("Campo.txt", "lote 1.nbr", "lote 10.RPT", "Lote 2.rpt"));
}

TEST(FilesBehind, TextsThatGoWithOtherFilesAreLeftOut) {
    const TempFolder folder;
    for (const char* name : {"LOG0001.NBR", "wrk0001.txt", "Wrk0002.txt", "Matriculas.TXT"}) {
        folder.write(name, "x");
    }
    // The second summary has no track file beside it: the user shall hear what it is.
    EXPECT_THAT(names(filesBehind(folder.path())), ElementsAre("LOG0001.NBR", "Wrk0002.txt"));
}

TEST(FilesBehind, ABlankReportBesideItsPrescriptionIsLeftOut) {
    const TempFolder folder;
    const std::string blank(6000, '\0');
    folder.write("Lote.PRE", "x");
    folder.write("lote.rpt", blank);
    folder.write("hecho.pre", "x");
    folder.write("hecho.rpt", blank.substr(0, 40) + "x" + blank);
    folder.write("solo.rpt", blank);
    EXPECT_THAT(names(filesBehind(folder.path())),
                ElementsAre("hecho.pre", "hecho.rpt", "Lote.PRE", "solo.rpt"));
}

}  // namespace
}  // namespace campora
