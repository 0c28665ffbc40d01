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

TEST_F(Program, NotesWhatIsToBeSaidAboutAFileThatOpens) {
    std::string bytes = reportBytes();
    bytes[32 + 32 + 27] = 1;  // the highest byte of a swath
    const std::string path = folder.write("lote.rpt", bytes + "xyz");
    const Outcome outcome = run("info --json --language en @lote.rpt");
    const std::string cut = "The last record is cut off and was not read: it has 3 bytes of 32";
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.boxes, StartsWith("note: " + path + ": " + cut + "\nnote: "));
    EXPECT_EQ(linesOf(outcome.boxes), 2);
    EXPECT_THAT(outcome.out, HasSubstr("\"" + cut + "\","));
    EXPECT_THAT(outcome.out, Not(HasSubstr("(!)"))) << "values stay bare";
    EXPECT_THAT(run("info @lote.rpt").out, HasSubstr(" (!)\n"));
    report("sano.rpt");
    EXPECT_THAT(run("info --json @sano.rpt").out, Not(HasSubstr("remarks")));
}

TEST_F(Program, AFileThatIsRefusedDoesNotStopTheOthers) {
    report("bueno.rpt");
    folder.write("carta.doc", "Estimado");
    folder.write("corto.rpt", reportBytes().substr(0, 20));
    const std::pair<std::string, int> rows[] = {
        {"@falta.rpt", 1}, {"@carta.doc", 1}, {"@bueno.rpt", 0},  // open already
        {"@corto.rpt", 1}, {"@", 1},
    };
    for (const auto& [path, boxes] : rows) {
        SCOPED_TRACE(path);
        const Outcome outcome = run("info @bueno.rpt --json " + path);
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
    const Outcome no = run("info @log0001.nbr @log0002.nbr");
    EXPECT_EQ(no.status, 1);
    EXPECT_EQ(no.boxes, "El archivo  |  | " + less +
                            " |  | corresponde a un trabajo ya cargdo y mas completo en |  | " +
                            more + " |  | Desea eliminar del disco el archivo viejo?\n");
    EXPECT_TRUE(isThere("log0002.nbr"));
    EXPECT_EQ(run("info @log0001.nbr @log0002.nbr --yes").status, 1);
    EXPECT_FALSE(isThere("log0002.nbr"));

    RptBytes fourFields;
    fourFields.addFourFields(fixAt(0, 0), 1000);
    fourFields.addFourFields(fixAt(100, 0), 1000);
    folder.write("viejo.rpt", fourFields.bytes());
    EXPECT_THAT(run("info @viejo.rpt --swath 40").out, HasSubstr("Hect. Trabajadas: 0.4"));
    EXPECT_EQ(run("info @viejo.rpt --swath ").status, 1) << "an empty answer";
}

TEST_F(Program, TellsAndCopiesTheOrdersOfAFolder) {
    TrackText text;
    text.order = "15";
    const std::string first = folder.write("LOG1.NBR", text.bytes());
    text.order = "S/N";
    const std::string second = folder.write("log2.nbr", text.bytes());
    std::filesystem::create_directory(nativePath(folder.file("copia")));
    const Outcome listed = run("orders @");
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.out, "Orden 15  15/07/16  18:03:32\n  " + first +
                              "\nSin número  15/07/16  18:03:32\n  " + second + "\n");
    const Outcome copied = run("orders @ --copy 15 @copia");
    EXPECT_EQ(copied.status, 0);
    EXPECT_EQ(copied.boxes, " 1 archivos copiados\n");

    const std::string copy = folder.write("copia/LOG1.NBR", "otra cosa");
    const std::pair<const char*, int> rows[] = {
        {"orders @ --copy 15 @copia", 2},  // the question is answered with No
        {"orders @ --copy 16 @copia", 1},
        {"orders @LOG1.NBR", 1},
    };
    for (const auto& [line, boxes] : rows) {
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(linesOf(outcome.boxes), boxes) << outcome.boxes;
    }
    EXPECT_EQ(contentOf(copy), "otra cosa");
    EXPECT_EQ(run("orders @ --copy 15 @copia --yes").status, 0);
    EXPECT_EQ(contentOf(copy), contentOf(first));
}

TEST_F(Program, TellsWhatTheFilesOfAProjectHold) {
    const std::string source = report("lote.rpt");
    const std::string header = "FurrowScope project file\n";
    folder.write("a.fsp", header + "/LOTE.RPT");
    const Outcome outcome = run("project @a.fsp --json --program-dir @");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.boxes, "");
    EXPECT_THAT(outcome.out, HasSubstr("\"name\": \"lote.rpt\""));
    folder.write("b.fsp", header + "/lote.rpt\n/falta.rpt");
    folder.write("c.fsp", header + "/lote.rpt\n" + source);
    const std::pair<std::string, int> rows[] = {{"@b.fsp", 1}, {"@c.fsp", 0}, {"@lote.rpt", 1}};
    for (const auto& [path, boxes] : rows) {
        SCOPED_TRACE(path);
        const Outcome refused = run("project --program-dir @ " + path);
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(linesOf(refused.boxes), boxes);
    }
}

TEST_F(Program, AWrongCommandLineShowsTheUsage) {
    const Outcome outcome = run("info a.rpt --size 2x2 --language en");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.boxes, StartsWith("Unknown option: --size\n\nUsage: campora-cli "));
    const Outcome help = run("--help");
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
    folder.write("lote.rpt", reportBytes(1500));
    const std::pair<std::string, QRgb> rows[] = {
        {"", qRgb(255, 255, 0)},
        {" --no-overlay", qRgb(255, 255, 0)},
        {" --mode error --channel 1", qRgb(255, 0, 255)},
    };
    std::vector<std::size_t> sizes;
    for (const auto& [options, swath] : rows) {
        const Outcome outcome = run("render @lote.rpt -o @mapa.png --size 600x450" + options);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.boxes, "");
        const QImage image(QString::fromStdString(picture));
        ASSERT_EQ(image.size(), QSize(600, 450));
        // The two steps meet in the middle; this is inside the first.
        EXPECT_EQ(image.pixel(150, 232), swath) << options;
        sizes.push_back(contentOf(picture).size());
    }
    EXPECT_GT(sizes[0], sizes[1]) << "a scale bar and arrows";
}

TEST_F(Program, APictureThatCannotBeMadeLeavesNothing) {
    report("lote.rpt");
    const std::string old = folder.write("mapa.png", "the old one");
    EXPECT_EQ(run("render @falta.rpt -o @mapa.png").status, 1);
    EXPECT_EQ(contentOf(old), "the old one");

    const Outcome outcome = run("render @lote.rpt -o @falta/mapa.png");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.boxes, HasSubstr("mapa.png"));

    const auto files = std::filesystem::directory_iterator(nativePath(folder.path()));
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

}  // namespace
}  // namespace campora
