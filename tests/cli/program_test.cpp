// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/program.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <QImage>
#include <gtest/gtest.h>

#include "base/paths.h"
#include "cli/batch_platform.h"
#include "support/temp_folder.h"
#include "support/work_files.h"

namespace campora {
namespace {

using Words = std::vector<std::string>;

struct Outcome {
    int status = 0;
    std::string out;
    std::string boxes;
};

Outcome run(const Words& words, const std::string& dataFolder = "") {
    std::ostringstream out;
    std::ostringstream boxes;
    const int status = runProgram(words, dataFolder, {out, boxes});
    return {status, out.str(), boxes.str()};
}

/// A report of three points, 10 m apart from west to east, with a swath of 20 m.
std::string reportBytes(std::int32_t realTenths = 1000) {
    RptBytes bytes(1);
    for (int i = 0; i < 3; ++i) {
        RptBytes::Record record;
        record.position = fixAt(10.0 * i, 0);
        record.realTenths[0] = realTenths;
        record.alarms = 1;
        bytes.add(record);
    }
    return bytes.bytes();
}

std::string trackBytes(int points) {
    TrackText text;
    for (int i = 0; i < points; ++i) {
        text.addPoint(100U * static_cast<std::uint32_t>(i), 0, 5, 20);
    }
    return text.bytes();
}

TEST(Program, TellsWhatIsInAFile) {
    const TempFolder folder;
    folder.write("matriculas.txt", "6001:LV-XYZ");
    const std::string path = folder.write("log0001.nbr", trackBytes(3));
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
    EXPECT_EQ(
        run({"info", path, "--program-dir", folder.file("otra")}, folder.path()).out.find("LV-XYZ"),
        std::string::npos);
}

TEST(Program, NotesWhatIsToBeSaidAboutAFileThatOpens) {
    const TempFolder folder;
    std::string bytes = reportBytes();
    bytes[32 + 32 + 27] = 1;  // the highest byte of a swath
    const std::string path = folder.write("lote.rpt", bytes + "xyz");
    const Outcome outcome = run({"info", "--json", "--language", "en", path});
    const std::string cut = "The last record is cut off and was not read: it has 3 bytes of 32";
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.boxes.find("note: " + path + ": " + cut + "\nnote: "), 0U) << outcome.boxes;
    EXPECT_EQ(std::count(outcome.boxes.begin(), outcome.boxes.end(), '\n'), 2);
    EXPECT_NE(outcome.out.find("\"remarks\": ["), std::string::npos);
    EXPECT_NE(outcome.out.find("\"" + cut + "\","), std::string::npos);
    EXPECT_EQ(outcome.out.find("(!)"), std::string::npos) << "values stay bare";
    EXPECT_NE(run({"info", path}).out.find(" (!)\n"), std::string::npos);
    EXPECT_EQ(run({"info", "--json", folder.write("sano.rpt", reportBytes())}).out.find("remarks"),
              std::string::npos);
}

TEST(Program, AFileThatIsRefusedDoesNotStopTheOthers) {
    const TempFolder folder;
    const std::string good = folder.write("bueno.rpt", reportBytes());
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
        EXPECT_EQ(std::count(outcome.boxes.begin(), outcome.boxes.end(), '\n'), boxes);
        EXPECT_NE(outcome.out.find("\"name\": \"bueno.rpt\""), std::string::npos);
    }
}

TEST(Program, NamesDoNotSteerTheTerminal) {
    const TempFolder folder;
    const std::string name = "a\x1B[2J\u202Eb\u0085.rpt";
    const std::string good = folder.write(name, reportBytes());
    const Outcome outcome = run({"info", good, folder.file("no\n" + name)});
    EXPECT_EQ(outcome.out.substr(0, outcome.out.find('\n')), "a\uFFFD[2J\uFFFDb\uFFFD.rpt");
    for (const std::string& text : {outcome.out, outcome.boxes}) {
        EXPECT_EQ(text.find("\x1B"), std::string::npos);
        EXPECT_EQ(text.find("\u202E"), std::string::npos);
    }
    EXPECT_EQ(std::count(outcome.boxes.begin(), outcome.boxes.end(), '\n'), 1);
    EXPECT_NE(run({"info", "--json", good}).out.find("a\\u001B[2J\\u202Eb\\u0085.rpt"),
              std::string::npos);
}

TEST(Program, OptionsAnswerTheQuestions) {
    const TempFolder folder;
    const std::string more = folder.write("log0001.nbr", trackBytes(4));
    const std::string less = folder.write("log0002.nbr", trackBytes(3));
    const Outcome no = run({"info", more, less});
    EXPECT_EQ(no.status, 1);
    EXPECT_EQ(no.boxes, "El archivo  |  | " + less +
                            " |  | corresponde a un trabajo ya cargdo y mas completo en |  | " +
                            more + " |  | Desea eliminar del disco el archivo viejo?\n");
    EXPECT_TRUE(std::filesystem::exists(nativePath(less)));
    EXPECT_EQ(run({"info", more, less, "--yes"}).status, 1);
    EXPECT_FALSE(std::filesystem::exists(nativePath(less)));

    RptBytes fourFields;
    fourFields.addFourFields(fixAt(0, 0), 1000);
    fourFields.addFourFields(fixAt(100, 0), 1000);
    const std::string report = folder.write("viejo.rpt", fourFields.bytes());
    const Outcome answered = run({"info", report, "--swath", "40"});
    EXPECT_NE(answered.out.find("Hect. Trabajadas: 0.4"), std::string::npos) << answered.out;
    EXPECT_EQ(run({"info", report, "--swath", ""}).status, 1);
}

TEST(Program, TellsAndCopiesTheOrdersOfAFolder) {
    const TempFolder folder;
    TrackText track;
    track.order = "15";
    const std::string first = folder.write("LOG1.NBR", track.bytes());
    track.order = "S/N";
    const std::string second = folder.write("log2.nbr", track.bytes());
    const std::string copy = folder.file("copia");
    std::filesystem::create_directory(nativePath(copy));
    const Outcome listed = run({"orders", folder.path()});
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.out, "Orden 15  15/07/16  18:03:32\n  " + first +
                              "\nSin número  15/07/16  18:03:32\n  " + second + "\n");
    const Outcome copied = run({"orders", folder.path(), "--copy", "15", copy});
    EXPECT_EQ(copied.status, 0);
    EXPECT_EQ(copied.boxes, " 1 archivos copiados\n");
    EXPECT_TRUE(std::filesystem::exists(nativePath(copy + "/LOG1.NBR")));

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
        EXPECT_EQ(std::count(outcome.boxes.begin(), outcome.boxes.end(), '\n'), boxes)
            << outcome.boxes;
    }
    EXPECT_EQ(std::filesystem::file_size(nativePath(copy + "/LOG1.NBR")), 9U);
    EXPECT_EQ(run({"orders", folder.path(), "--copy", "15", copy, "--yes"}).status, 0);
}

TEST(Program, TellsWhatTheFilesOfAProjectHold) {
    const TempFolder folder;
    const std::string report = folder.write("lote.rpt", reportBytes());
    const std::string header = "FurrowScope project file\n";
    const std::string good = folder.write("a.fsp", header + "/LOTE.RPT");
    const Outcome outcome = run({"project", good, "--json", "--program-dir", folder.path()});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.boxes, "");
    EXPECT_NE(outcome.out.find("\"name\": \"lote.rpt\""), std::string::npos);
    const std::pair<std::string, int> rows[] = {
        {folder.write("b.fsp", header + "/lote.rpt\n/falta.rpt"), 1},
        {folder.write("c.fsp", header + "/lote.rpt\n" + report), 0},  // open already
        {folder.write("d.fsp", header), 1},
        {report, 1},
        {folder.file("falta.fsp"), 1},
    };
    for (const auto& [path, boxes] : rows) {
        SCOPED_TRACE(path);
        const Outcome refused = run({"project", path}, folder.path());
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(std::count(refused.boxes.begin(), refused.boxes.end(), '\n'), boxes);
    }
}

TEST(Program, AWrongCommandLineShowsTheUsage) {
    const Outcome outcome = run({"info", "a.rpt", "--size", "2x2", "--language", "en"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.boxes.starts_with("Unknown option: --size\n\nUsage: campora-cli "));
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.starts_with("Uso: campora-cli "));
    EXPECT_EQ(help.boxes, "");
}

TEST(Program, OutputThatCannotBePrintedIsNotDone) {
    const TempFolder folder;
    std::ostringstream out;
    std::ostringstream boxes;
    out.setstate(std::ios::badbit);
    EXPECT_EQ(runProgram(Words{"info", folder.write("lote.rpt", reportBytes())}, "", {out, boxes}),
              1);
}

/// Renders a report at half the usual size and answers the picture.
QImage render(const TempFolder& folder, const std::string& report, const Words& options) {
    const std::string picture = folder.file("mapa.png");
    Words words = {"render", report, "-o", picture, "--size", "600x450"};
    words.insert(words.end(), options.begin(), options.end());
    const Outcome outcome = run(words);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.boxes, "");
    return QImage(QString::fromStdString(picture));
}

int pixelsOf(QRgb color, const QImage& picture) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += picture.pixel(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

TEST(Program, RendersTheMapInTheChosenColours) {
    const std::pair<Words, QRgb> rows[] = {
        {{}, qRgb(255, 255, 0)},
        {{"--mode", "plain"}, qRgb(0x80, 0x80, 0xFF)},
        {{"--mode", "alarm"}, qRgb(255, 0, 0)},
        {{"--mode", "error", "--channel", "1"}, qRgb(255, 0, 255)},
        {{"--mode", "error", "--error-limit", "60"}, qRgb(255, 255, 0)},
    };
    const TempFolder folder;
    const std::string report = folder.write("lote.rpt", reportBytes(1500));
    for (const auto& [options, swath] : rows) {
        const QImage picture = render(folder, report, options);
        ASSERT_EQ(picture.size(), QSize(600, 450));
        // The two steps meet in the middle; this is inside the first.
        EXPECT_EQ(picture.pixel(150, 232), swath) << testing::PrintToString(options);
    }
}

TEST(Program, StepsWithoutFlowAreDrawnAsTheOptionsSay) {
    const TempFolder folder;
    const std::string report = folder.write("lote.rpt", reportBytes(0));
    const QRgb white = qRgb(255, 255, 255);
    EXPECT_NE(render(folder, report, {}).pixel(150, 232), white);
    EXPECT_EQ(render(folder, report, {"--only-worked"}).pixel(150, 232), white);
    const QImage dotted = render(folder, report, {"--only-worked", "--dotted"});
    EXPECT_GT(pixelsOf(qRgb(0, 255, 0x40), dotted), 0);
    EXPECT_EQ(dotted.pixel(150, 300), white);
}

TEST(Program, APictureThatCannotBeMadeLeavesNothing) {
    const TempFolder folder;
    const std::string report = folder.write("lote.rpt", reportBytes());
    const std::string old = folder.write("mapa.png", "the old one");
    EXPECT_EQ(run({"render", folder.file("falta.rpt"), "-o", old}).status, 1);
    EXPECT_EQ(std::filesystem::file_size(nativePath(old)), 11U);

    const Outcome outcome = run({"render", report, "-o", folder.file("falta/mapa.png")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.boxes.find("mapa.png"), std::string::npos);

    EXPECT_EQ(run({"render", report, folder.file("falta.rpt"), "-o", old}).status, 1);
    EXPECT_FALSE(QImage(QString::fromStdString(old)).isNull()) << "what could be done is done";
    const auto files = std::filesystem::directory_iterator(nativePath(folder.path()));
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

}  // namespace
}  // namespace campora
