// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Prescriptions made by the batch program: of small maps, and of the shared samples, where they
// are there, byte for byte as other makers have them.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <QByteArray>
#include <QCryptographicHash>
#include <QImage>
#include <QPoint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "base/files.h"
#include "base/paths.h"
#include "cli/arguments.h"
#include "cli/program.h"
#include "support/shape_bytes.h"
#include "support/shared_samples.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using Words = std::vector<std::string>;

struct Outcome {
    int status = 0;
    std::string out;
    std::string boxes;
};

Outcome run(const Words& words) {
    std::ostringstream out;
    std::ostringstream boxes;
    const int status = runProgram(words, "", {out, boxes});
    return {status, out.str(), boxes.str()};
}

/// Two squares of 111 m at the equator side by side, doses 10 and 20; NOMBRE is no number.
std::string writeMap(const TempFolder& folder, const std::string& name) {
    ShapeBytes shapes(5);
    DbaseBytes table({{"DOSIS", 'N', 10}, {"NOMBRE", 'C', 10}});
    for (int i = 0; i < 2; ++i) {
        const double x = -60 + 0.001 * i;
        shapes.addPolygon({{{x, 0}, {x, 0.001}, {x + 0.001, 0.001}, {x + 0.001, 0}, {x, 0}}});
        table.addRow({std::to_string(10 + 10 * i), "lote"});
    }
    folder.write(name + ".dbf", table.bytes());
    return folder.write(name + ".shp", shapes.bytes());
}

TEST(Prescribe, TakesItsOrdersFromTheCommandLine) {
    const Result<Arguments> parsed = parseArguments(
        Words{"prescribe", "--channel", "a,b.SHP,DOSIS", "--channel", "c.shp,SEMILLA,12,5",
              "--channel", "d.shp,X,", "--format", "vrt", "--resolution", "7,5", "--oversize",
              "change", "--name", "N", "--description", "D", "-o", "out.vrt"});
    ASSERT_TRUE(parsed);
    const PrescriptionOrder& order = parsed->prescription;
    EXPECT_EQ(order.channels, (std::vector<ChannelSource>{{"a,b.SHP", "DOSIS", std::nullopt},
                                                          {"c.shp", "SEMILLA", "12,5"},
                                                          {"d.shp", "X", ""}}));
    EXPECT_EQ(order.kind, GridKind::Vrt);
    EXPECT_EQ(order.resolution, 7.5F);
    EXPECT_EQ(order.oversize, Answer::Yes);
    EXPECT_EQ(order.name + order.description, "ND");
}

TEST(Prescribe, AWrongCommandLineIsRefused) {
    const Words rows[] = {
        {"prescribe", "-o", "a.pre"},
        {"prescribe", "--channel", "a.shp,D"},
        {"prescribe", "--channel", "a.shp", "-o", "a.pre"},
        {"prescribe", "--channel", "a.shp,,5", "-o", "a.pre"},
        {"prescribe", "--channel", "a.shp,D", "-o", "a.vrt"},
        {"prescribe", "--channel", "a.shp,D", "-o", "a.vrt", "--format", "vrt"},
        {"prescribe", "--channel", "a.shp,D", "-o", "a.pre", "--oversize", "no"},
        {"prescribe", "--channel", "a.shp,D", "-o", "a.pre", "--blanks", "0"},
        {"prescribe", "--channel", "a.shp,D", "-o", "a.pre", "--decimal-column", ";"},
    };
    for (const Words& words : rows) {
        EXPECT_EQ(run(words).status, 2) << testing::PrintToString(words);
    }
}

TEST(Prescribe, SaysWhatItWroteAndAnswersAsItIsTold) {
    const TempFolder folder;
    const std::string map = writeMap(folder, "mapa");
    struct Row {
        const char* name;
        const char* channel;
        const char* size;
        const char* oversize;
        int status;
        const char* says;
    };
    const Row rows[] = {
        {"as proposed", "DOSIS", "10", "keep", 0, "Canal 1: 390 celdas con dosis, 3.9 ha, "},
        {"no fallback", "DOSIS,", "10", "keep", 0, "Canal 1: 242 celdas con dosis, 2.42 ha, "},
        {"a size of 0", "DOSIS", "0", "keep", 1, "mayor que 0"},
        {"no such column", "dosis", "10", "keep", 1,
         "la columna «dosis». Elija una de estas: DOSIS, N"},
        {"texts", "NOMBRE", "10", "keep", 1, "contiene valores no numéricos"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string out = folder.file("out.pre");
        const Outcome outcome = run({"prescribe", "--channel", map + "," + row.channel, "--swath",
                                     row.size, "--oversize", row.oversize, "-o", out});
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_THAT(outcome.boxes, HasSubstr(row.says));
        EXPECT_EQ(std::filesystem::exists(out), row.status == 0);
        std::filesystem::remove(out);
    }
    const Outcome missing =
        run({"prescribe", "--channel", folder.file("no.shp") + ",D", "-o", folder.file("out.pre")});
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.boxes, HasSubstr("no.shp: no existe"));
}

TEST(Prescribe, ColumnsOfPeopleAreReadAsItIsTold) {
    const auto samples = sharedSample("samples/presc");
    if (!samples) {
        GTEST_SKIP() << "no shared samples";
    }
    const TempFolder folder;
    const std::string channel = *samples + "/nulls.shp,CON_NULO,7";
    const std::string out = folder.file("out.pre");
    const Outcome refused = run({"prescribe", "--channel", channel, "-o", out});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.boxes, HasSubstr("Zonas sin valor en la columna CON_NULO: 1 (la primera"));
    EXPECT_FALSE(std::filesystem::exists(out));
    const Outcome taken = run({"prescribe", "--channel", channel, "--blanks", "empty", "-o", out});
    EXPECT_EQ(taken.status, 0) << taken.boxes;
    const Outcome overlap =
        run({"prescribe", "--channel", *samples + "/overlap.shp,DOSIS", "-o", out});
    EXPECT_EQ(overlap.status, 0);
    EXPECT_THAT(overlap.boxes, HasSubstr("note: Polígonos de overlap.shp que se superponen"));
}

TEST(Prescribe, EveryChannelOfAPrescriptionCanBeDrawn) {
    const TempFolder folder;
    const std::string map = writeMap(folder, "mapa");
    const std::string grid = folder.file("out.pre");
    ASSERT_EQ(run({"prescribe", "--channel", map + ",DOSIS,", "--channel", map + ",DOSIS,7",
                   "--swath", "10", "-o", grid})
                  .status,
              0);
    const std::string picture = folder.file("mapa.png");
    struct Row {
        const char* channel;
        bool margin;  ///< whether cells without a zone have a colour
        const char* says;
    };
    for (const Row& row : {Row{"1", false, ""}, Row{"2", true, ""},
                           Row{"3", false, "Advertencia: out.pre no tiene un Canal 3\n"}}) {
        SCOPED_TRACE(row.channel);
        const Outcome outcome = run({"render", grid, "--channel", row.channel, "--no-overlay",
                                     "--size", "260x150", "-o", picture});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.boxes, row.says);
        const QImage image(QString::fromStdString(picture));
        ASSERT_FALSE(image.isNull());
        const QPoint corner(image.width() / 2, image.height() / 7);
        EXPECT_EQ(image.pixel(corner) != qRgb(255, 255, 255), row.margin);
        EXPECT_NE(image.pixel(image.rect().center()), qRgb(255, 255, 255));
    }
}

TEST(Prescribe, ADamagedMapIsToldAsFarAsItIsSoundAndPrescribesNothing) {
    const TempFolder folder;
    const std::string map = writeMap(folder, "mapa");
    std::filesystem::resize_file(map, std::filesystem::file_size(map) - 1);
    const Outcome told = run({"info", "--json", map});
    EXPECT_EQ(told.status, 1);
    EXPECT_THAT(told.boxes, HasSubstr("se leyeron solo 1 registros de " + map));
    EXPECT_EQ(json::parse(told.out)["files"][0]["layers"][0]["polygons"], 1);
    const std::string out = folder.file("out.pre");
    EXPECT_EQ(run({"prescribe", "--channel", map + ",DOSIS", "-o", out}).status, 1);
    EXPECT_FALSE(std::filesystem::exists(out));
}

std::string sha256(const std::string& path) {
    const Result<FileBytes> file = readFile(path);
    if (!file) {
        return "not there";
    }
    const std::string_view text = file->text();
    return QCryptographicHash::hash(QByteArray(text.data(), static_cast<qsizetype>(text.size())),
                                    QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

/// What `info --json` says, with paths reduced to the names of files.
json infoOf(const std::string& path) {
    json info = json::parse(run({"info", "--json", path}).out);
    for (json& file : info["files"]) {
        file["path"] = fileNamePart(file["path"].get<std::string>());
    }
    return info;
}

TEST(SharedPrescriptions, AreMadeByteForByte) {
    const auto folder = sharedSample("samples/presc");
    if (!folder) {
        GTEST_SKIP() << "no shared samples";
    }
    const json all = json::parse(std::ifstream(*folder + "/expected.json"));
    for (const json& prescription : all["prescriptions"]) {
        for (const std::string kind : {"pre", "vrt"}) {
            SCOPED_TRACE(prescription["name"].get<std::string>() + " " + kind);
            const json& expected = prescription[kind];
            const TempFolder out;
            Words words{"prescribe"};
            for (const std::string word : expected["args"]) {
                const bool isMap = words.back() == "--channel";
                words.push_back(isMap ? *folder + "/" + word : word);
            }
            words.insert(words.end(), {"-o", out.file("out." + kind)});
            EXPECT_EQ(run(words).status, expected["exit"]);
            for (const auto& [ending, file] : expected["files"].items()) {
                EXPECT_EQ(sha256(out.file("out." + ending)), file["sha256"]);
            }
            json info = infoOf(out.file("out." + kind));
            json& summary = info["files"][0]["summary"];
            const std::size_t channels = info["files"][0]["layers"][0]["channels"].size();
            ASSERT_GT(summary.size(), channels);
            summary.erase(summary.end() - static_cast<std::ptrdiff_t>(channels), summary.end());
            EXPECT_EQ(info, expected["info"]);
        }
    }
}

TEST(SharedPrescriptions, MapsAreToldAsExpected) {
    const auto folder = sharedSample("samples/presc");
    if (!folder) {
        GTEST_SKIP() << "no shared samples";
    }
    const json all = json::parse(std::ifstream(*folder + "/expected.json"));
    for (const auto& [name, expected] : all["info"].items()) {
        EXPECT_TRUE(infoOf(*folder + "/" + name) == expected) << name;
    }
}

}  // namespace
}  // namespace campora
