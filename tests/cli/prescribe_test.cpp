// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Prescriptions made by the batch program: of small maps, and of the shared samples, where they
// are there, byte for byte as other makers have them.

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <QImage>
#include <QPoint>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "base/files.h"
#include "base/paths.h"
#include "base/sha256.h"
#include "support/batch_run.h"
#include "support/shape_bytes.h"
#include "support/shared_samples.h"

namespace campora {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

struct Prescribe : BatchRun {
    /// Two squares of 111 m at the equator side by side, doses 10 and 20; NOMBRE is no number.
    Prescribe() {
        ShapeBytes shapes(5);
        DbaseBytes table({{"DOSIS", 'N', 10}, {"NOMBRE", 'C', 10}, {"MEDIA", 'N', 10}});
        for (int i = 0; i < 2; ++i) {
            const double x = -60 + 0.001 * i;
            shapes.addPolygon({{{x, 0}, {x, 0.001}, {x + 0.001, 0.001}, {x + 0.001, 0}, {x, 0}}});
            table.addRow({std::to_string(10 + 10 * i), "lote", "10.5"});
        }
        folder.write("mapa.dbf", table.bytes());
        folder.write("mapa.shp", shapes.bytes());
    }

    std::string map = folder.file("mapa.shp");
    std::string grid = folder.file("out.pre");
};

TEST_F(Prescribe, ReadsTheFileBackAndChecksIt) {
    const std::string make = "prescribe --channel @mapa.shp,DOSIS,3 --swath 10 -o @out.pre ";
    const Outcome page = run(make + "--check --tank 20 --dose-limits 5,15");
    EXPECT_EQ(page.status, 0);
    EXPECT_TRUE(page.out.starts_with("De acuerdo: las 390 celdas")) << page.out;
    EXPECT_THAT(page.out, HasSubstr("Canal 1: 269 celdas con dosis fuera de los límites"));
    const json said = json::parse(run(make + "--check --tank 20 --json").out);
    EXPECT_EQ(said["agrees"], true);
    const json& channel = said["channels"][0];
    // 11 by 11 cells of 0.01 ha a zone.
    EXPECT_NEAR(channel["zones"]["product"].get<double>(), 121 * 0.01 * (10 + 20), 1e-9);
    EXPECT_NEAR(channel["fallback"]["product"].get<double>(), 148 * 0.01 * 3, 1e-9);
    EXPECT_NEAR(channel["tankLoads"].get<double>(), (36.3 + 4.44) / 20, 1e-9);
    EXPECT_EQ(run(make).out, "") << "as without it";

    const Outcome alone = run("prescribe --check @out.pre --language en");
    EXPECT_EQ(alone.status, 0);
    EXPECT_TRUE(alone.out.starts_with("Without the maps")) << alone.out;
    EXPECT_EQ(run("prescribe --check @mapa.dbf").status, 1);
    EXPECT_EQ(run("prescribe @out.pre").status, 2);
}

TEST_F(Prescribe, SaysWhatItWroteAndAnswersAsItIsTold) {
    const std::tuple<const char*, int, const char*> rows[] = {
        {"DOSIS --swath 10", 0, "Canal 1: 390 celdas con dosis, 3.9 ha, "},
        {"DOSIS, --swath 10", 0, "Canal 1: 242 celdas con dosis, 2.42 ha, "},
        {"DOSIS --swath 0", 1, "mayor que 0"},
        {"dosis --swath 10", 1, "la columna «dosis». Elija una de estas: DOSIS, N"},
        {"MEDIA --swath 10", 0, "Un archivo PRE guarda enteros"},
        {"NOMBRE --swath 10", 1, "contiene valores no numéricos"},
    };
    for (const auto& [words, status, says] : rows) {
        SCOPED_TRACE(words);
        const Outcome outcome =
            run(std::string("prescribe -o @out.pre --channel @mapa.shp,") + words);
        EXPECT_EQ(outcome.status, status);
        EXPECT_THAT(outcome.boxes, HasSubstr(says));
        EXPECT_EQ(std::filesystem::exists(grid), status == 0);
        std::filesystem::remove(grid);
    }
    const Outcome decimals =
        run("prescribe --format vrt --resolution 10 --channel @mapa.shp,MEDIA -o @out.vrt");
    EXPECT_EQ(decimals.status, 0);
    EXPECT_THAT(decimals.boxes, Not(HasSubstr("enteros"))) << "a VRT file keeps decimals";
    const Outcome missing = run("prescribe --channel @no.shp,D -o @out.pre");
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.boxes, HasSubstr("no.shp: no existe"));
}

TEST_F(Prescribe, EveryChannelOfAPrescriptionCanBeDrawn) {
    const std::string channels = "--channel @mapa.shp,DOSIS, --channel @mapa.shp,DOSIS,7";
    ASSERT_EQ(run("prescribe --swath 10 -o @out.pre " + channels).status, 0);
    // Whether cells without a zone have a colour, and what is said.
    const std::tuple<const char*, bool, const char*> rows[] = {
        {"1", false, ""},
        {"2", true, ""},
        {"3", false, "Advertencia: out.pre no tiene un Canal 3\n"},
    };
    for (const auto& [channel, margin, says] : rows) {
        SCOPED_TRACE(channel);
        const Outcome outcome =
            run(std::string("render @out.pre --no-overlay --size 260x150 -o @mapa.png --channel ") +
                channel);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.boxes, says);
        const QImage image(QString::fromStdString(folder.file("mapa.png")));
        ASSERT_FALSE(image.isNull());
        const QPoint corner(image.width() / 2, image.height() / 7);
        EXPECT_EQ(image.pixel(corner) != qRgb(255, 255, 255), margin);
        EXPECT_NE(image.pixel(image.rect().center()), qRgb(255, 255, 255));
    }
}

TEST_F(Prescribe, ADamagedMapIsToldAsFarAsItIsSoundAndPrescribesNothing) {
    std::filesystem::resize_file(map, std::filesystem::file_size(map) - 1);
    const Outcome told = run("info --json @mapa.shp");
    EXPECT_EQ(told.status, 1);
    EXPECT_THAT(told.boxes, HasSubstr("se leyeron solo 1 registros de " + map));
    EXPECT_EQ(json::parse(told.out)["files"][0]["layers"][0]["polygons"], 1);
    EXPECT_EQ(run("prescribe --channel @mapa.shp,DOSIS -o @out.pre").status, 1);
    EXPECT_FALSE(std::filesystem::exists(grid));
}

struct SharedPrescriptions : BatchRun {
    void SetUp() override {
        if (!samples) {
            GTEST_SKIP() << "no shared samples";
        }
        all = json::parse(std::ifstream(*samples + "/expected.json"));
    }
    /// What `info --json` says, with paths reduced to the names of files.
    [[nodiscard]] json infoOf(const std::string& path) const {
        json info = json::parse(run({"info", "--json", path}).out);
        for (json& file : info["files"]) {
            file["path"] = fileNamePart(file["path"].get<std::string>());
        }
        return info;
    }

    std::optional<std::string> samples = sharedSample("samples/presc");
    json all;
};

TEST_F(SharedPrescriptions, ColumnsOfPeopleAreReadAsItIsTold) {
    const std::string grid = folder.file("out.pre");
    const std::string channel = *samples + "/nulls.shp,CON_NULO,7";
    const Outcome refused = run({"prescribe", "--channel", channel, "-o", grid});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.boxes, HasSubstr("Zonas sin valor en la columna CON_NULO: 1 (la primera"));
    EXPECT_FALSE(std::filesystem::exists(grid));
    const Outcome taken = run({"prescribe", "--channel", channel, "--blanks", "empty", "-o", grid});
    EXPECT_EQ(taken.status, 0) << taken.boxes;
}

TEST_F(SharedPrescriptions, AreMadeByteForByte) {
    for (const json& prescription : all["prescriptions"]) {
        for (const std::string kind : {"pre", "vrt"}) {
            SCOPED_TRACE(prescription["name"].get<std::string>() + " " + kind);
            const json& expected = prescription[kind];
            Words words{"prescribe"};
            for (const std::string word : expected["args"]) {
                const bool isMap = words.back() == "--channel";
                words.push_back(isMap ? *samples + "/" + word : word);
            }
            words.insert(words.end(), {"-o", "@out." + kind});
            EXPECT_EQ(run(words).status, expected["exit"]);
            for (const auto& [ending, file] : expected["files"].items()) {
                const Result<FileBytes> bytes = readFile(folder.file("out." + ending));
                ASSERT_TRUE(bytes);
                EXPECT_EQ(sha256(bytes->bytes()), file["sha256"]);
            }
            json info = infoOf("@out." + kind);
            json& summary = info["files"][0]["summary"];
            const std::size_t channels = info["files"][0]["layers"][0]["channels"].size();
            ASSERT_GT(summary.size(), channels);
            summary.erase(summary.end() - static_cast<std::ptrdiff_t>(channels), summary.end());
            EXPECT_EQ(info, expected["info"]);
        }
    }
}

TEST_F(SharedPrescriptions, MapsAreToldAsExpected) {
    for (const auto& [name, expected] : all["info"].items()) {
        EXPECT_TRUE(infoOf(*samples + "/" + name) == expected) << name;
    }
}

}  // namespace
}  // namespace campora
