// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/generation.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/files.h"
#include "presc/pre_grid.h"
#include "presc/vrt_grid.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/zone_layers.h"

namespace campora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kDegree = 111320;

/// A field at the equator, so that a degree is equally long both ways, of this size in metres and a
/// millimetre more.
std::vector<LonLat> field(double widthM, double heightM) {
    return rectangleRing(10, 0, 10 + (widthM + 0.001) / kDegree, (heightM + 0.001) / kDegree);
}

/// Makes prescriptions in a folder of its own.
struct Desk {
    TempFolder folder;
    ScriptedDialogs dialogs;
    FixedLocale locale;
    Texts texts;
    std::string prePath = folder.file("lote.pre");
    std::string vrtPath = folder.file("lote.vrt");

    bool pre(const std::vector<ZoneLayer>& layers, int cellSize = 20) {
        return generatePRE(prePath, cellSize, channels(layers), {dialogs, texts, locale})
            .has_value();
    }
    bool vrt(const std::vector<ZoneLayer>& layers, float resolution = 20) {
        return generateVRT(vrtPath, resolution, {"Norte", ""}, channels(layers),
                           {dialogs, texts, locale})
            .has_value();
    }
    [[nodiscard]] PreGrid readPre() const {
        const Result<FileBytes> file = readFile(prePath);
        return file ? decodePre(file->bytes()) : PreGrid();
    }
    [[nodiscard]] VrtGrid readVrt() const {
        const Result<FileBytes> file = readFile(vrtPath);
        return file ? decodeVrt(file->bytes()) : VrtGrid();
    }
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    static std::vector<ChannelZones> channels(const std::vector<ZoneLayer>& layers) {
        std::vector<ChannelZones> all;
        for (const ZoneLayer& layer : layers) {
            all.push_back(layer.channel());
        }
        return all;
    }
};

ZoneLayer oneZone(float dose, double widthM = 1000, double heightM = 500) {
    ZoneLayer layer;
    layer.add(dose, {field(widthM, heightM)});
    return layer;
}

struct GenerationTest : testing::Test, Desk {};

TEST_F(GenerationTest, AGridHasAMarginOfTwoCellsAndADoseWhereAZoneIs) {
    dialogs.inputAnswers = {""};
    ASSERT_TRUE(pre({oneZone(85)}));
    const PreGrid grid = readPre();
    EXPECT_EQ(grid.header.columns, 54);
    EXPECT_EQ(grid.header.rows, 29);
    EXPECT_EQ(grid.header.metresPerMinuteOfLongitude, 1855);
    EXPECT_EQ(std::count(grid.doses.begin(), grid.doses.end(), 85), 50 * 25);
    EXPECT_EQ(grid.doses.at(2 * 54 + 2), 85) << "the north-west corner of the field";
    EXPECT_EQ(grid.doses.at(2 * 54 + 1), 0);
    EXPECT_THAT(files(), ElementsAre("lote.pre", "lote.rpt"));
    EXPECT_EQ(std::filesystem::file_size(folder.file("lote.rpt")), 54U * 29 * 32 - 2);
    EXPECT_THAT(dialogs.messages,
                ElementsAre("Information|Campora|Se guardó " + prePath +
                            ": 1566 celdas, 62.64 ha\n"
                            "Canal 1: 1250 celdas con dosis, 50 ha, 4250 unid de producto"));
}

TEST_F(GenerationTest, EveryChannelHasItsFallbackDose) {
    dialogs.inputAnswers = {"33", "", "-1,5"};
    ZoneLayer layer = oneZone(12.5F);
    layer.meanDose = 71.9F;
    ASSERT_TRUE(pre({layer, oneZone(13.5F), oneZone(1)}));
    EXPECT_THAT(dialogs.inputs, ElementsAre("2150|Campora|71", "2151|Campora|0", "2152|Campora|0"));
    const PreGrid grid = readPre();
    EXPECT_EQ(grid.header.channels, 3);
    ASSERT_EQ(grid.doses.size(), 54U * 29 * 3);
    EXPECT_THAT(std::vector(grid.doses.begin(), grid.doses.begin() + 3), ElementsAre(33, 0, -2));
    const auto inside = grid.doses.begin() + (2 * 54 + 2) * 3;
    EXPECT_THAT(std::vector(inside, inside + 3), ElementsAre(12, 14, 1)) << "halves to even";
}

TEST_F(GenerationTest, AVrtGoesNorthInHundredthsWithoutQuestions) {
    ZoneLayer layer = oneZone(12.34F);
    layer.add(7, {field(20, 20)});
    ASSERT_TRUE(vrt({layer}));
    const VrtGrid grid = readVrt();
    EXPECT_EQ(grid.header.columns, 54);
    EXPECT_EQ(grid.header.rows, 29);
    EXPECT_EQ(grid.header.name, "Norte");
    EXPECT_EQ(grid.header.x0, static_cast<float>(10 - 40 / kDegree));
    EXPECT_EQ(grid.header.y0, static_cast<float>(-40 / kDegree));
    EXPECT_EQ(grid.doses.at(0), 0);
    EXPECT_EQ(grid.doses.at(2 * 54 + 2), 700) << "the south-west corner, laid last";
    EXPECT_EQ(grid.doses.at(2 * 54 + 3), 1234);
    EXPECT_THAT(dialogs.inputs, IsEmpty());
    EXPECT_THAT(files(), ElementsAre("lote.vrt"));
}

TEST(Generation, TheCentresOfAVrtCountFromItsOriginInSinglePrecision) {
    // 104 degrees west single precision is steps of 0.85 m: the zone holds the centres that count
    // from the rounded origin, and would miss those that count from the true one.
    const double west = -104.00000286;
    const double origin = static_cast<double>(-104.0000229F);
    const double metre = 1 / kDegree;
    const double centre = origin + 5.5 * metre;
    ZoneLayer layer;
    layer.add(1, {rectangleRing(west, 0, west + 20 * metre, 20 * metre)});
    layer.add(2, {rectangleRing(centre - 0.05 * metre, 0, centre + 0.05 * metre, 20 * metre)});
    Desk desk;
    ASSERT_TRUE(desk.vrt({layer}, 1));
    const VrtGrid grid = desk.readVrt();
    ASSERT_EQ(grid.header.x0, -104.0000229F);
    EXPECT_EQ(std::count(grid.doses.begin(), grid.doses.end(), 200), 20);
}

TEST(Generation, AGridTooLargeForConsolesIsAskedAbout) {
    using Answers = std::deque<Answer>;
    using Inputs = std::deque<std::optional<std::string>>;  // after the fallback dose
    // Width of the field, answers, columns of the grid (0: none is written), what the last question
    // names and what is proposed.
    const std::tuple<double, Answers, Inputs, int, const char*, const char*> rows[] = {
        {952, {}, {}, 480, "", ""},
        {954, {Answer::Cancel}, {}, 0, "menor a 3\n", ""},
        {2000, {Answer::No}, {}, 1004, "menor a 4\n", ""},
        {2000, {Answer::Yes, Answer::Yes}, {"4", "5"}, 404, "menor a 5\n", "5"},
        {2000, {Answer::Yes}, {"ancho"}, 0, "menor a 4\n", "4"},
        {2000, {Answer::Yes, Answer::No}, {""}, 1004, "a 4\n", "4"},
        {2000, {Answer::Yes}, {std::nullopt}, 0, "lote.pre", "4"},
    };
    for (const auto& [width, answers, inputs, columns, names, proposes] : rows) {
        SCOPED_TRACE(testing::Message() << width << ' ' << names << columns);
        Desk desk;
        desk.dialogs.answers = answers;
        desk.dialogs.inputAnswers = inputs;
        desk.dialogs.inputAnswers.push_front("0");
        EXPECT_EQ(desk.pre({oneZone(5, width, 400)}, 2), columns > 0);
        EXPECT_EQ(desk.readPre().header.columns, columns);
        ASSERT_EQ(desk.dialogs.questions.size(), answers.size());
        EXPECT_TRUE(answers.empty() ||
                    desk.dialogs.questions.back().find(names) != std::string::npos);
        ASSERT_FALSE(desk.dialogs.inputs.empty());
        EXPECT_TRUE(desk.dialogs.inputs.back().ends_with(proposes));
    }
}

TEST(Generation, WhatNoFileCanHoldIsRefusedBeforeAnythingIsWritten) {
    ZoneLayer far = oneZone(1);
    far.add(32768, {rectangleRing(11, 0, 11, 0)});
    ZoneLayer thin;  // between the rows of centres
    thin.add(1, {rectangleRing(10, 0, 10.001, 1e-6)});
    ZoneLayer pole;
    pole.add(1, {rectangleRing(10, 89, 11, 90)});
    const std::tuple<const char*, ZoneLayer, int, bool, const char*> rows[] = {
        {"above 16 bits", oneZone(32767.5F), 20, false, "dosis 32767.5 de la zona 1 del canal 1"},
        {"below 16 bits", oneZone(-32769), 20, false, "debe ser de -32768 a 32767"},
        {"in a zone that no cell meets", far, 20, false, "la dosis 32768 de la zona 2"},
        {"above hundredths", oneZone(327.68F), 20, true, "debe ser de -327.68 a 327.67"},
        {"no cell meets a zone", thin, 20, true, "ninguna celda cae en una zona"},
        {"no width", oneZone(1), 0, false, "mayor que 0 y hasta 32767 metros: 0"},
        {"the pole", pole, 20, false, "el mapa llega hasta el polo"},
    };
    for (const auto& [name, layer, size, vrt, says] : rows) {
        SCOPED_TRACE(name);
        Desk desk;
        EXPECT_FALSE(vrt ? desk.vrt({layer}) : desk.pre({layer}, size));
        ASSERT_THAT(desk.dialogs.messages, ElementsAre(HasSubstr(says)));
        EXPECT_THAT(desk.dialogs.messages.at(0), HasSubstr(vrt ? "lote.vrt" : "lote.pre"));
        EXPECT_THAT(desk.files(), IsEmpty());
    }
    Desk fits;
    fits.dialogs.inputAnswers = {"40000", ""};
    EXPECT_FALSE(fits.pre({oneZone(1)})) << "a fallback that no file can hold";
    EXPECT_TRUE(fits.pre({oneZone(32767.4F)})) << "judged after rounding";
}

TEST_F(GenerationTest, AGridBeyondTheFieldsOfTheFileIsRefused) {
    dialogs.inputAnswers = {""};
    dialogs.answers = {Answer::No};
    EXPECT_FALSE(pre({oneZone(1, 33000, 100)}, 1));
    EXPECT_THAT(dialogs.messages, ElementsAre(HasSubstr("33004 columnas y 104 filas")));
    EXPECT_THAT(files(), IsEmpty());
}

TEST(Generation, AnEarlierPrescriptionOutlivesWhatFails) {
    for (const int cancelAfter : {0, 1, 2, 3}) {
        SCOPED_TRACE(cancelAfter);
        Desk desk;
        desk.folder.write("lote.pre", "earlier");
        desk.dialogs.inputAnswers = {""};
        desk.dialogs.cancelAfter = cancelAfter;
        EXPECT_EQ(desk.pre({oneZone(1)}), cancelAfter > 2);
        EXPECT_EQ(readFile(desk.prePath)->text() == "earlier", cancelAfter <= 2);
        EXPECT_EQ(desk.files().size(), cancelAfter > 2 ? 2U : 1U);
    }
    for (const char* const name : {"lote.rpt", "LOTE.RPT"}) {
        Desk worked;  // the console has written its report beside the earlier prescription
        worked.folder.write("lote.pre", "earlier");
        worked.folder.write(name, std::string(5000, '\0') + "x");
        EXPECT_FALSE(worked.pre({oneZone(1)}));
        EXPECT_THAT(worked.dialogs.messages, ElementsAre(HasSubstr(worked.folder.file(name))));
        EXPECT_THAT(worked.dialogs.inputs, IsEmpty()) << "refused before any question";
        EXPECT_EQ(readFile(worked.prePath)->text(), "earlier");
        EXPECT_EQ(contentOf(worked.folder.file(name)).size(), 5001U);
    }
}

}  // namespace
}  // namespace campora
