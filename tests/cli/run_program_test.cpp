// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/run_program.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <QImage>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/batch_run.h"

namespace campora {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Program = BatchRun;

auto linesOf(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
}

TEST_F(Program, TellsWhatIsInAFile) {
    folder.write("matriculas.txt", "6001:LV-XYZ");
    const std::string path = track("log0001.nbr", 3);
    folder.write("Wrk0001.txt", "Lote,La Loma,\r\nAncho.,18,mts\r\n");
    const Outcome outcome = run({"info", path}, folder.path());
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.boxes, "");
    EXPECT_EQ(outcome.out, "log0001.nbr (LV-XYZ)\n"
                           "  " +
                               path +
                               "\n"
                               "  Lot: La Loma\n"
                               "  Ancho: 18 mts\n"
                               "  Capas GphTrack: 1 (2 elementos, 3 puntos)\n"
                               "  Extensión: (-60.5002; -31.5) a (-60.5; -31.5), 19 x 0 m\n");
    EXPECT_THAT(run({"info", path, "--program-dir", folder.file("otra")}, folder.path()).out,
                Not(HasSubstr("LV-XYZ")));
}

TEST_F(Program, NotesWhatIsToBeSaidAboutAFileThatOpens) {
    std::string bytes = reportBytes();
    bytes[32 + 32 + 27] = 1;  // the highest byte of a swath
    const std::string path = folder.write("lote.rpt", bytes + "xyz");
    const Outcome outcome = run({"info", "--json", "--language", "en", path});
    const std::string cut = "The last record is cut off and was not read: it has 3 bytes of 32";
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.boxes, StartsWith("note: " + path + ": " + cut + "\nnote: "));
    EXPECT_EQ(linesOf(outcome.boxes), 2);
    EXPECT_THAT(outcome.out, HasSubstr("\"" + cut + "\","));
    EXPECT_THAT(outcome.out, Not(HasSubstr("(!)"))) << "values stay bare";
    EXPECT_THAT(run({"info", path}).out, HasSubstr(" (!)\n"));
    EXPECT_THAT(run({"info", "--json", report("sano.rpt")}).out, Not(HasSubstr("remarks")));
}

TEST_F(Program, AFileThatIsRefusedDoesNotStopTheOthers) {
    const std::string good = report("bueno.rpt");
    const std::pair<std::string, int> rows[] = {
        {folder.file("falta.rpt"), 1},
        {folder.write("carta.doc", "Estimado"), 1},
        {good, 0},  // open already
        {folder.write("corto.rpt", reportBytes().substr(0, 20)), 1},
        {folder.path(), 1},
    };
    for (const auto& [path, boxes] : rows) {
        SCOPED_TRACE(path);
        const Outcome outcome = run({"info", good, path, "--json"});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(linesOf(outcome.boxes), boxes);
        EXPECT_THAT(outcome.out, HasSubstr("\"name\": \"bueno.rpt\""));
    }
}

TEST_F(Program, NamesDoNotSteerTheTerminal) {
    const std::string name = "a\x1B[2J\u202Eb\u0085.rpt";
    const Outcome outcome = run({"info", report(name), folder.file("no\n" + name)});
    EXPECT_THAT(outcome.out, StartsWith("a\uFFFD[2J\uFFFDb\uFFFD.rpt\n"));
    EXPECT_THAT(outcome.out + outcome.boxes, Not(HasSubstr("\x1B")));
    EXPECT_EQ(linesOf(outcome.boxes), 1);
}

TEST_F(Program, OptionsAnswerTheQuestions) {
    const std::string more = track("log0001.nbr", 4);
    const std::string less = track("log0002.nbr", 3);
    const Outcome no = run({"info", more, less});
    EXPECT_EQ(no.status, 1);
    EXPECT_EQ(no.boxes, "El archivo  |  | " + less +
                            " |  | corresponde a un trabajo ya cargdo y mas completo en |  | " +
                            more + " |  | Desea eliminar del disco el archivo viejo?\n");
    EXPECT_TRUE(isThere("log0002.nbr"));
    EXPECT_EQ(run({"info", more, less, "--yes"}).status, 1);
    EXPECT_FALSE(isThere("log0002.nbr"));

    RptBytes fourFields;
    fourFields.addFourFields(fixAt(0, 0), 1000);
    fourFields.addFourFields(fixAt(100, 0), 1000);
    const std::string old = folder.write("viejo.rpt", fourFields.bytes());
    EXPECT_THAT(run({"info", old, "--swath", "40"}).out, HasSubstr("Hect. Trabajadas: 0.4"));
    EXPECT_EQ(run({"info", old, "--swath", ""}).status, 1);
}

TEST_F(Program, TellsAndCopiesTheOrdersOfAFolder) {
    TrackText text;
    text.order = "15";
    const std::string first = folder.write("LOG1.NBR", text.bytes());
    text.order = "S/N";
    const std::string second = folder.write("log2.nbr", text.bytes());
    const std::string copy = folder.file("copia");
    std::filesystem::create_directory(nativePath(copy));
    const Outcome listed = run({"orders", folder.path()});
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.out, "Orden 15  15/07/16  18:03:32\n  " + first +
                              "\nSin número  15/07/16  18:03:32\n  " + second + "\n");
    const Outcome copied = run({"orders", folder.path(), "--copy", "15", copy});
    EXPECT_EQ(copied.status, 0);
    EXPECT_EQ(copied.boxes, " 1 archivos copiados\n");

    folder.write("copia/LOG1.NBR", "otra cosa");
    const std::pair<Words, int> rows[] = {
        {{"orders", folder.path(), "--copy", "15", copy}, 2},  // the question is answered with No
        {{"orders", folder.path(), "--copy", "16", copy}, 1},
        {{"orders", folder.file("falta"), "--copy", "15", copy}, 1},
        {{"orders", first}, 1},
    };
    for (const auto& [words, boxes] : rows) {
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(linesOf(outcome.boxes), boxes) << outcome.boxes;
    }
    EXPECT_EQ(contentOf(copy + "/LOG1.NBR"), "otra cosa");
    EXPECT_EQ(run({"orders", folder.path(), "--copy", "15", copy, "--yes"}).status, 0);
    EXPECT_EQ(contentOf(copy + "/LOG1.NBR"), contentOf(first));
}

TEST_F(Program, TellsWhatTheFilesOfAProjectHold) {
    const std::string source = report("lote.rpt");
    const std::string header = "FurrowScope project file\n";
    const std::string good = folder.write("a.fsp", header + "/LOTE.RPT");
    const Outcome outcome = run({"project", good, "--json", "--program-dir", folder.path()});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.boxes, "");
    EXPECT_THAT(outcome.out, HasSubstr("\"name\": \"lote.rpt\""));
    const std::pair<std::string, int> rows[] = {
        {folder.write("b.fsp", header + "/lote.rpt\n/falta.rpt"), 1},
        {folder.write("c.fsp", header + "/lote.rpt\n" + source), 0},  // open already
        {folder.write("d.fsp", header), 1},
        {source, 1},
        {folder.file("falta.fsp"), 1},
    };
    for (const auto& [path, boxes] : rows) {
        SCOPED_TRACE(path);
        const Outcome refused = run({"project", path}, folder.path());
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(linesOf(refused.boxes), boxes);
    }
}

TEST_F(Program, AWrongCommandLineShowsTheUsage) {
    const Outcome outcome = run({"info", "a.rpt", "--size", "2x2", "--language", "en"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.boxes, StartsWith("Unknown option: --size\n\nUsage: campora-cli "));
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.boxes, "");
    EXPECT_THAT(help.out, StartsWith("Uso: campora-cli "));
    EXPECT_THAT(
        help.out,
        HasSubstr(
            "\n      --format shp-polygon|shp-point|bmp|kml|txt|txt-comma|shp-gis|geojson|png "));
}

TEST_F(Program, OutputThatCannotBePrintedIsNotDone) {
    std::ostringstream out;
    std::ostringstream boxes;
    out.setstate(std::ios::badbit);
    EXPECT_EQ(runProgram(Words{"info", report("lote.rpt")}, "", {out, boxes}), 1);
}

TEST_F(Program, TheMapHasTheChosenColours) {
    const std::string picture = folder.file("mapa.png");
    const std::pair<Words, QRgb> rows[] = {
        {{}, qRgb(255, 255, 0)},
        {{"--no-overlay"}, qRgb(255, 255, 0)},
        {{"--mode", "plain"}, qRgb(0x80, 0x80, 0xFF)},
        {{"--mode", "error", "--channel", "1"}, qRgb(255, 0, 255)},
    };
    std::vector<std::size_t> sizes;
    for (const auto& [options, swath] : rows) {
        Words words = {"render", folder.write("lote.rpt", reportBytes(1500)),
                       "-o",     picture,
                       "--size", "600x450"};
        words.insert(words.end(), options.begin(), options.end());
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.boxes, "");
        const QImage image(QString::fromStdString(picture));
        ASSERT_EQ(image.size(), QSize(600, 450));
        // The two steps meet in the middle; this is inside the first.
        EXPECT_EQ(image.pixel(150, 232), swath) << testing::PrintToString(options);
        sizes.push_back(contentOf(picture).size());
    }
    EXPECT_GT(sizes[0], sizes[1]) << "a scale bar and arrows";
}

TEST_F(Program, APictureThatCannotBeMadeLeavesNothing) {
    const std::string source = report("lote.rpt");
    const std::string old = folder.write("mapa.png", "the old one");
    EXPECT_EQ(run({"render", folder.file("falta.rpt"), "-o", old}).status, 1);
    EXPECT_EQ(contentOf(old), "the old one");

    const Outcome outcome = run({"render", source, "-o", folder.file("falta/mapa.png")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.boxes, HasSubstr("mapa.png"));

    EXPECT_EQ(run({"render", source, folder.file("falta.rpt"), "-o", old}).status, 1);
    EXPECT_FALSE(QImage(QString::fromStdString(old)).isNull()) << "what could be done is done";
    const auto files = std::filesystem::directory_iterator(nativePath(folder.path()));
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

}  // namespace
}  // namespace campora
