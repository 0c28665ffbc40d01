// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <filesystem>
#include <string>
#include <utility>

#include <QImage>
#include <gmock/gmock.h>

#include "base/interruption.h"
#include "base/paths.h"
#include "support/batch_run.h"

namespace campora {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

struct ExportTest : BatchRun {
    [[nodiscard]] std::string content(const std::string& name) const {
        return contentOf(folder.file(name));
    }
};

TEST_F(ExportTest, EveryFormatIsWrittenWithoutAQuestion) {
    report("lote.rpt");
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"shp-polygon -o @a.shp", "a.dbf", "\x03"},
        {"shp-point -o @b", "b.dbf", "\x03"},
        {"bmp -o @c.bmp", "c.bmp", "BM"},
        {"kml -o @d.kml", "d.kml", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<kml "},
        {"txt -o @e.dat", "e.dat", "Longitud\tLatitud\tD_Real1"},
        {"shp-gis -o @g.shp", "g.prj", "GEOGCS"},
        {"geojson -o @h.geojson", "h.geojson", "{"},
        {"png -o @i.png", "i.png", "\x89PNG"},
    };
    for (const auto& [words, file, begin] : rows) {
        SCOPED_TRACE(words);
        const Outcome outcome = run(std::string("export @lote.rpt --format ") + words);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.boxes, "");
        EXPECT_THAT(content(file), StartsWith(begin));
    }
    EXPECT_EQ(QImage(QString::fromStdString(folder.file("c.bmp"))),
              QImage(QString::fromStdString(folder.file("i.png"))));
}

TEST_F(ExportTest, WhatWasRefusedIsToldAndTheRestIsDone) {
    report("lote.rpt");
    track("a.nbr");
    const Outcome partly = run("export @no.rpt @lote.rpt --format txt -o @a.txt");
    EXPECT_EQ(partly.status, 1);
    EXPECT_THAT(partly.boxes, HasSubstr("no.rpt: no existe"));
    EXPECT_TRUE(isThere("a.txt"));
    const Outcome bare = run("export @lote.rpt --format kml --program-dir @ -o @b");
    EXPECT_EQ(bare.status, 1);
    EXPECT_EQ(bare.boxes, "Error al exportar el archivo | No se puede leer el archivo " +
                              folder.file("kmlhead.inc") + ": no existe\n");
    for (const char* line : {"glg @no.rpt -o @b", "report-to-text @a.nbr -o @b"}) {
        EXPECT_EQ(run(line).status, 1) << line;
    }
    EXPECT_FALSE(isThere("b"));
}

TEST_F(ExportTest, TrackFilesAreExportedOneAfterAnother) {
    track("a.nbr");
    track("c.nbr");
    const std::string broken = folder.write("b.nbr", "x");
    const Outcome outcome =
        run("export-track @a.nbr @b.nbr @c.nbr --polygon-length 1 --only-sprayed");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Exportando a.nbr:...........Ok\n"
                           "Exportando b.nbr:...........Error\n"
                           "Exportando c.nbr:...........Ok\n");
    EXPECT_EQ(outcome.boxes, "El archivo no es compatible: " + broken + "\n");
    EXPECT_TRUE(isThere("a.shp") && isThere("c.shp") && !isThere("b.shp"));
    EXPECT_EQ(run("export-track @a.nbr --polygon-length 1 -o @all").status, 0);
    EXPECT_GT(content("all.shx").size(), content("a.shx").size());
}

TEST_F(ExportTest, AReportBecomesAText) {
    report("lote.rpt");
    EXPECT_EQ(run("report-to-text @lote.rpt -o @a.txt").status, 0);
    EXPECT_THAT(content("a.txt"), HasSubstr("\r\n 0.00898"));
    EXPECT_EQ(run("report-to-text @lote.rpt -o @a.txt --comma").status, 0);
    EXPECT_THAT(content("a.txt"), HasSubstr("\r\n 0,00898"));
}

TEST_F(ExportTest, ATargetWithoutANameIsRefused) {
    report("lote.rpt");
    track("a.nbr");
    for (const std::string line :
         {"export @lote.rpt --format shp-polygon -o @/", "export @lote.rpt --format kml -o @none/",
          "export-track @a.nbr -o @none/", "glg @lote.rpt -o @/"}) {
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.status, 1) << line;
        EXPECT_THAT(outcome.boxes, HasSubstr("No se puede guardar el archivo " +
                                             folder.file(line.substr(line.rfind('@') + 1)) + ": "));
    }
    EXPECT_FALSE(isThere(".shp") || isThere("none"));
}

TEST_F(ExportTest, WhatIsOpenOrBelongsToItIsNeverTheTarget) {
    const fs::path source = nativePath(report("lote.rpt"));
    const fs::path zones = nativePath(folder.write("zonas.shp", "x"));
    folder.write("WRK0105.TXT", "resumen");
    folder.write("zonas.DBF", "tabla");
    const fs::path work = nativePath(track("log0105.nbr"));
    fs::create_symlink(source, nativePath(folder.file("foto.png")));
    fs::create_hard_link(source, nativePath(folder.file("otro.txt")));
    fs::create_symlink(zones, nativePath(folder.file("zonas.pre")));
    fs::copy(work, nativePath(folder.file("zonas.nbr")));
    const std::pair<const char*, const char*> rows[] = {
        {"report-to-text @lote.rpt -o @lote.rpt", "lote.rpt"},
        {"report-to-text @lote.rpt -o @foto.png", "lote.rpt"},
        {"export @lote.rpt --format txt -o @otro.txt", "lote.rpt"},
        {"export @log0105.nbr --format txt -o @WRK0105.TXT", "WRK0105.TXT"},
        {"export @log0105.nbr @zonas.shp --format geojson -o @zonas.DBF", "zonas.DBF"},
        {"export-track @log0105.nbr @zonas.shp @zonas.nbr", "zonas.shp"},
        {"render @lote.rpt -o @foto.png", "lote.rpt"},
        {"prescribe --channel @zonas.shp,D -o @zonas.pre", "zonas.shp"},
        {"glg @lote.rpt -o @lote.rpt", "lote.rpt"},
    };
    for (const auto& [line, lost] : rows) {
        const std::string before = content(lost);
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.status, 1) << line;
        EXPECT_THAT(outcome.boxes, HasSubstr("se perdería " + folder.file(lost)));
        EXPECT_EQ(content(lost), before);
    }
    const std::string before = content("log0105.nbr");
    EXPECT_EQ(run("export-track @log0105.nbr -o @log0105.nbr").status, 0) << "goes beside it";
    EXPECT_EQ(content("log0105.nbr"), before);
}

TEST_F(ExportTest, AnInterruptionLeavesNoFile) {
    report("lote.rpt");
    for (const char* line :
         {"export @lote.rpt --format txt -o @a.txt", "export @lote.rpt --format png -o @a.png",
          "report-to-text @lote.rpt -o @a.txt", "glg @lote.rpt -o @a.glg",
          "render @lote.rpt -o @a.png"}) {
        const InterruptionWatch watch;
        (void)std::raise(SIGTERM);
        (void)std::raise(SIGTERM);  // sent to the process and to its group
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.status, 1) << line;
        EXPECT_EQ(outcome.boxes, "Cancelado\n") << line;
    }
    const fs::directory_iterator left(nativePath(folder.path()));
    EXPECT_EQ(std::distance(begin(left), end(left)), 1) << "the source";
}

}  // namespace
}  // namespace campora
