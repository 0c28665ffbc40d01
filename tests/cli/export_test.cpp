// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <filesystem>
#include <string>
#include <string_view>

#include <QImage>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/interruption.h"
#include "base/paths.h"
#include "support/batch_run.h"

namespace campora {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct ExportTest : BatchRun {
    static Outcome run(const Words& words) {
        return BatchRun::run(words, CAMPORA_SOURCE_DIR "/data");
    }
};

TEST_F(ExportTest, EveryFormatIsWrittenWithoutAQuestion) {
    const std::string source = report("lote.rpt");
    constexpr std::string_view kShapeCode("\0\0\x27\x0A", 4);
    struct Row {
        const char* format;
        const char* path;
        const char* file;
        std::string_view begin;
    };
    const Row rows[] = {
        {"shp-polygon", "a.shp", "a.dbf", "\x03"},
        {"shp-point", "b", "b.shx", kShapeCode},
        {"bmp", "c.bmp", "c.bmp", "BM"},
        {"kml", "d.kml", "d.kml", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<kml "},
        {"txt", "e.dat", "e.dat", "Longitud\tLatitud\tD_Real1"},
        {"txt-comma", "f.txt", "f.txt", "Longitud\tLatitud\tD_Real1"},
        {"shp-gis", "g.shp", "g.prj", "GEOGCS"},
        {"geojson", "h.geojson", "h.geojson", "{"},
        {"png", "i.png", "i.png", "\x89PNG"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.format);
        const Outcome outcome =
            run({"export", source, "--format", row.format, "-o", folder.file(row.path)});
        EXPECT_EQ(outcome.status, 0) << outcome.boxes;
        EXPECT_EQ(outcome.boxes, "");
        EXPECT_TRUE(isThere(row.file));
        EXPECT_THAT(contentOf(folder.file(row.file)), StartsWith(row.begin));
    }
    EXPECT_EQ(QImage(QString::fromStdString(folder.file("c.bmp"))),
              QImage(QString::fromStdString(folder.file("i.png"))));
}

TEST_F(ExportTest, WhatWasRefusedIsToldAndTheRestIsDone) {
    const std::string source = report("lote.rpt");
    const std::string missing = folder.file("no.rpt");
    const Outcome partly =
        run({"export", missing, source, "--format", "txt", "-o", folder.file("a.txt")});
    EXPECT_EQ(partly.status, 1);
    EXPECT_THAT(partly.boxes, HasSubstr("no.rpt: no existe"));
    EXPECT_TRUE(isThere("a.txt"));

    const Outcome bare = run({"export", source, "--format", "kml", "--program-dir", folder.path(),
                              "-o", folder.file("a.kml")});
    EXPECT_EQ(bare.status, 1);
    EXPECT_EQ(bare.boxes, "Error al exportar el archivo | No se puede leer el archivo " +
                              folder.file("kmlhead.inc") + ": no existe\n");

    const std::string other = folder.file("b");
    for (const Words& words :
         {Words{"export", missing, "--format", "txt", "-o", other},
          Words{"glg", missing, "-o", other}, Words{"report-to-text", missing, "-o", other},
          Words{"report-to-text", track("a.nbr"), "-o", other}}) {
        EXPECT_EQ(run(words).status, 1) << words.front();
    }
    EXPECT_FALSE(isThere("a.kml") || isThere("b"));
}

TEST_F(ExportTest, TrackFilesAreExportedOneAfterAnother) {
    const Outcome outcome = run({"export-track", track("a.nbr"), folder.write("b.nbr", "x"),
                                 track("c.nbr"), "--polygon-length", "1", "--only-sprayed"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Exportando a.nbr:...........Ok\n"
                           "Exportando b.nbr:...........Error\n"
                           "Exportando c.nbr:...........Ok\n");
    EXPECT_EQ(outcome.boxes, "El archivo no es compatible: " + folder.file("b.nbr") + "\n");
    EXPECT_TRUE(isThere("a.shp") && isThere("c.shp"));
    EXPECT_FALSE(isThere("b.shp"));
    const std::size_t sprayed = contentOf(folder.file("a.shx")).size();
    EXPECT_EQ(run({"export-track", folder.file("a.nbr"), "--polygon-length", "1", "-o",
                   folder.file("all")})
                  .status,
              0);
    EXPECT_GT(contentOf(folder.file("all.shx")).size(), sprayed);
}

TEST_F(ExportTest, AReportBecomesAText) {
    const std::string text = folder.file("a.txt");
    EXPECT_EQ(run({"report-to-text", report("lote.rpt"), "-o", text}).status, 0);
    EXPECT_THAT(contentOf(text), HasSubstr("\r\n 0.00898"));
    EXPECT_EQ(run({"report-to-text", folder.file("lote.rpt"), "-o", text, "--comma"}).status, 0);
    EXPECT_THAT(contentOf(text), HasSubstr("\r\n 0,00898"));
}

TEST_F(ExportTest, ATargetWithoutANameIsRefused) {
    const std::string source = report("lote.rpt");
    const std::string nbr = track("a.nbr");
    for (const std::string& target : {folder.path() + "/", folder.file("none/")}) {
        SCOPED_TRACE(target);
        const Words rows[] = {
            {"export", source, "--format", "shp-polygon", "-o", target},
            {"export", source, "--format", "kml", "-o", target},
            {"export-track", nbr, "-o", target},
            {"glg", source, "-o", target},
            {"report-to-text", source, "-o", target},
        };
        for (const Words& words : rows) {
            const Outcome outcome = run(words);
            EXPECT_EQ(outcome.status, 1) << words.front();
            EXPECT_THAT(outcome.boxes, HasSubstr("No se puede guardar el archivo " + target + ": "))
                << words.front();
        }
    }
    EXPECT_FALSE(isThere(".shp") || isThere("none"));
}

TEST_F(ExportTest, WhatIsOpenOrBelongsToItIsNeverTheTarget) {
    const std::string source = report("lote.rpt");
    const std::string link = folder.file("enlace.rpt");
    const std::string hard = folder.file("otro.txt");
    std::filesystem::create_symlink(nativePath(source), nativePath(link));
    std::filesystem::create_hard_link(nativePath(source), nativePath(hard));
    const std::string nbr = track("log0105.nbr");
    const std::string summary = folder.write("WRK0105.TXT", "resumen");
    const std::string zones = folder.write("zonas.shp", "x");
    const std::string table = folder.write("zonas.DBF", "tabla");
    const std::string copy = folder.file("copia.txt");
    struct Row {
        Words words;
        std::string lost;
    };
    const Row rows[] = {
        {{"report-to-text", source, "-o", source}, source},
        {{"report-to-text", folder.file("LOTE.rpt"), "-o", source}, source},
        {{"report-to-text", source, "-o", link}, source},
        {{"report-to-text", source, "-o", hard}, source},
        {{"export", source, "--format", "bmp", "-o", link}, source},
        {{"export", nbr, "--format", "txt", "-o", summary}, summary},
        {{"export", nbr, zones, "--format", "geojson", "-o", table}, table},
        {{"export-track", nbr, zones, folder.file("zonas.nbr")}, zones},
        {{"render", source, "-o", folder.file("foto.png")}, source},
        {{"prescribe", "--channel", zones + ",D", "-o", folder.file("zonas.pre")}, zones},
        {{"glg", source, "-o", source}, source},
    };
    std::filesystem::create_symlink(nativePath(source), nativePath(folder.file("foto.png")));
    std::filesystem::create_symlink(nativePath(zones), nativePath(folder.file("zonas.pre")));
    std::filesystem::copy(nativePath(nbr), nativePath(folder.file("zonas.nbr")));
    for (const Row& row : rows) {
        const std::string before = contentOf(row.lost);
        const Outcome outcome = run(row.words);
        EXPECT_EQ(outcome.status, 1) << testing::PrintToString(row.words);
        EXPECT_THAT(outcome.boxes, HasSubstr("se perdería " + row.lost));
        EXPECT_EQ(contentOf(row.lost), before);
    }
    const std::string before = contentOf(nbr);
    EXPECT_EQ(run({"export-track", nbr, "-o", nbr}).status, 0) << "goes beside it";
    EXPECT_EQ(contentOf(nbr), before);
    EXPECT_EQ(run({"export", nbr, "--format", "txt", "-o", copy}).status, 0);
    EXPECT_EQ(run({"export", nbr, "--format", "txt", "-o", copy}).status, 0) << "its own earlier";
}

TEST_F(ExportTest, AnInterruptionLeavesNoFile) {
    const std::string source = report("lote.rpt");
    const Words rows[] = {
        {"export", source, "--format", "txt", "-o", folder.file("a.txt")},
        {"export", source, "--format", "png", "-o", folder.file("a.png")},
        {"report-to-text", source, "-o", folder.file("a.txt")},
        {"glg", source, "-o", folder.file("a.glg")},
        {"render", source, "-o", folder.file("a.png")},
    };
    for (const Words& words : rows) {
        const InterruptionWatch watch;
        (void)std::raise(SIGTERM);
        (void)std::raise(SIGTERM);  // sent to the process and to its group
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 1) << words.front();
        EXPECT_EQ(outcome.boxes, "Cancelado\n") << words.front();
    }
    const std::filesystem::directory_iterator left(nativePath(folder.path()));
    EXPECT_EQ(std::distance(begin(left), end(left)), 1) << "the source";
    auto* const handler = std::signal(SIGHUP, SIG_IGN);
    {
        const InterruptionWatch watch;
        (void)std::raise(SIGHUP);
        EXPECT_EQ(run(rows[0]).status, 0) << "nobody interrupts this one";
    }
    (void)std::signal(SIGHUP, handler);
}

TEST_F(ExportTest, GlgHoldsThePointsOfAllFiles) {
    EXPECT_EQ(run({"glg", track("a.nbr"), report("b.rpt"), "-o", folder.file("a.glg")}).status, 0);
    EXPECT_EQ(contentOf(folder.file("a.glg")).size(), (5U + 3U) * 8U);
}

}  // namespace
}  // namespace campora
