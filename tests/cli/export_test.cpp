// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <QImage>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/interruption.h"
#include "base/paths.h"
#include "cli/program.h"
#include "support/temp_folder.h"
#include "support/work_files.h"

namespace campora {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Words = std::vector<std::string>;

struct ExportTest : testing::Test {
    struct Outcome {
        int status = 0;
        std::string out;
        std::string boxes;
    };
    static Outcome run(const Words& words) {
        std::ostringstream out;
        std::ostringstream boxes;
        const int status = runProgram(words, CAMPORA_SOURCE_DIR "/data", {out, boxes});
        return {status, out.str(), boxes.str()};
    }
    [[nodiscard]] std::string report(const std::string& name) const {
        RptBytes bytes(1);
        for (int i = 0; i < 3; ++i) {
            RptBytes::Record record;
            record.position = fixAt(10.0 * i, 0);
            bytes.add(record);
        }
        return folder.write(name, bytes.bytes());
    }
    [[nodiscard]] std::string track(const std::string& name) const {
        TrackText text;
        for (std::uint32_t i = 0; i < 5; ++i) {
            text.addPoint(100 * i, 0, i < 3 ? 50 : 0, 20);
        }
        return folder.write(name, text.bytes());
    }
    [[nodiscard]] bool isThere(std::string_view name) const {
        return std::filesystem::exists(nativePath(folder.file(name)));
    }

    TempFolder folder;
};

TEST_F(ExportTest, WrongCommandLinesAreRefused) {
    const Words rows[] = {
        {"export", "a.rpt", "-o", "a.kml"},
        {"export", "a.rpt", "--format", "kml"},
        {"export", "a.rpt", "--format", "dxf", "-o", "a.dxf"},
        {"export", "--format", "kml", "-o", "a.kml"},
        {"export-track", "a.nbr", "--polygon-length", "0"},
        {"export-track", "a.nbr", "--polygon-length", "101"},
        {"export-track", "a.nbr", "b.nbr", "-o", "c"},
        {"report-to-text", "a.rpt"},
        {"report-to-text", "a.rpt", "b.rpt", "-o", "c.txt"},
        {"glg", "a.rpt"},
        {"info", "a.rpt", "--comma"},
    };
    for (const Words& words : rows) {
        EXPECT_EQ(run(words).status, 2) << testing::PrintToString(words);
    }
}

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
        {"shp-polygon", "j", "j.shp", kShapeCode},
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
    const Outcome partly = run(
        {"export", folder.file("no.rpt"), source, "--format", "txt", "-o", folder.file("a.txt")});
    EXPECT_EQ(partly.status, 1);
    EXPECT_THAT(partly.boxes, HasSubstr("no.rpt: no existe"));
    EXPECT_TRUE(isThere("a.txt"));

    const Outcome bare = run({"export", source, "--format", "kml", "--program-dir", folder.path(),
                              "-o", folder.file("a.kml")});
    EXPECT_EQ(bare.status, 1);
    EXPECT_EQ(bare.boxes, "Error al exportar el archivo | No se puede leer el archivo " +
                              folder.file("kmlhead.inc") + ": no existe\n");
    EXPECT_FALSE(isThere("a.kml"));

    EXPECT_EQ(run({"export", folder.file("no.rpt"), "--format", "txt", "-o", folder.file("b.txt")})
                  .status,
              1);
    EXPECT_FALSE(isThere("b.txt"));
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
    const std::string source = report("lote.rpt");
    for (const bool comma : {false, true}) {
        Words words{"report-to-text", source, "-o", folder.file("a.txt")};
        if (comma) {
            words.emplace_back("--comma");
        }
        EXPECT_EQ(run(words).status, 0);
        EXPECT_THAT(contentOf(folder.file("a.txt")),
                    HasSubstr(comma ? "\r\n 0,00898" : "\r\n 0.00898"));
    }
    EXPECT_EQ(run({"report-to-text", folder.file("no.rpt"), "-o", folder.file("b.txt")}).status, 1);
    const Outcome other = run({"report-to-text", track("a.nbr"), "-o", folder.file("b.txt")});
    EXPECT_EQ(other.status, 1);
    EXPECT_EQ(other.boxes, "El archivo no es compatible: " + folder.file("a.nbr") + "\n");
    EXPECT_FALSE(isThere("b.txt"));
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
        {{"export", nbr, source, "--format", "txt", "-o", source}, source},
        {{"export", source, "--format", "bmp", "-o", link}, source},
        {{"export", nbr, "--format", "txt", "-o", summary}, summary},
        {{"export", nbr, zones, "--format", "geojson", "-o", table}, table},
        {{"export-track", nbr, "-o", nbr}, ""},
        {{"export-track", zones, "-o", zones}, zones},
        {{"export-track", nbr, zones, folder.file("zonas.nbr")}, zones},
        {{"render", source, "-o", folder.file("foto.png")}, source},
        {{"prescribe", "--channel", zones + ",D", "-o", folder.file("zonas.pre")}, zones},
        {{"glg", source, "-o", source}, source},
    };
    std::filesystem::create_symlink(nativePath(source), nativePath(folder.file("foto.png")));
    std::filesystem::create_symlink(nativePath(zones), nativePath(folder.file("zonas.pre")));
    std::filesystem::copy(nativePath(nbr), nativePath(folder.file("zonas.nbr")));
    for (const Row& row : rows) {
        const std::string before = contentOf(row.lost.empty() ? nbr : row.lost);
        const Outcome outcome = run(row.words);
        if (!row.lost.empty()) {
            EXPECT_EQ(outcome.status, 1) << testing::PrintToString(row.words);
            EXPECT_THAT(outcome.boxes, HasSubstr("se perdería " + row.lost));
        }
        EXPECT_EQ(contentOf(row.lost.empty() ? nbr : row.lost), before);
    }
    EXPECT_EQ(run({"export", nbr, "--format", "txt", "-o", copy}).status, 0);
    EXPECT_EQ(run({"export", nbr, "--format", "txt", "-o", copy}).status, 0) << "its own earlier";
}

/// What a signal does while the object lives.
class HandledSignal {
public:
    HandledSignal(int signal, void (*handler)(int))
        : signal_(signal), before_(std::signal(signal, handler)) {}
    HandledSignal(const HandledSignal&) = delete;
    HandledSignal& operator=(const HandledSignal&) = delete;
    ~HandledSignal() { std::signal(signal_, before_); }

private:
    int signal_;
    void (*before_)(int);
};

TEST_F(ExportTest, AnInterruptionLeavesNoFile) {
    const std::string source = report("lote.rpt");
    const std::string nbr = track("a.nbr");
    const Words rows[] = {
        {"export", source, "--format", "txt", "-o", folder.file("a.txt")},
        {"export", source, "--format", "png", "-o", folder.file("a.png")},
        {"report-to-text", source, "-o", folder.file("a.txt")},
        {"glg", source, "-o", folder.file("a.glg")},
        {"render", source, "-o", folder.file("a.png")},
    };
    for (const Words& words : rows) {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            const HandledSignal handled(signal, SIG_DFL);  // whatever the tests were started with
            const InterruptionWatch watch;
            (void)std::raise(signal);
            (void)std::raise(signal);  // sent to the process and to its group
            const Outcome outcome = run(words);
            EXPECT_EQ(outcome.status, 1) << words.front();
            EXPECT_EQ(outcome.boxes, "Cancelado\n") << words.front();
        }
    }
    const std::filesystem::directory_iterator left(nativePath(folder.path()));
    EXPECT_EQ(std::distance(begin(left), end(left)), 2) << "the sources";
    const HandledSignal ignored(SIGHUP, SIG_IGN);
    const InterruptionWatch watch;
    (void)std::raise(SIGHUP);
    EXPECT_EQ(run(rows[0]).status, 0) << "nobody interrupts this one";
}

TEST_F(ExportTest, GlgHoldsEightBytesAPoint) {
    EXPECT_EQ(run({"glg", track("a.nbr"), report("b.rpt"), "-o", folder.file("a.glg")}).status, 0);
    const std::string both = contentOf(folder.file("a.glg"));
    ASSERT_EQ(both.size(), 8U * 8U);
    EXPECT_EQ(run({"glg", folder.file("b.rpt"), "-o", folder.file("b.glg")}).status, 0);
    const std::string one = contentOf(folder.file("b.glg"));
    EXPECT_EQ(one.size(), 3U * 8U);
    EXPECT_TRUE(both.ends_with(one)) << "in the order of the files";
    EXPECT_EQ(run({"glg", folder.file("no.rpt"), "-o", folder.file("c.glg")}).status, 1);
    EXPECT_FALSE(isThere("c.glg"));
}

}  // namespace
}  // namespace campora
