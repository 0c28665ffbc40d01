// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/dose_columns.h"

#include <filesystem>
#include <tuple>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "base/text.h"
#include "support/session_desk.h"
#include "support/zone_map.h"

namespace campora {
namespace {

using Messages = std::vector<std::string>;

struct DoseColumnsTest : testing::Test, SessionDesk {
    /// A map of these doses is chosen for the row.
    void choose(int row, const std::vector<std::string>& doses, LonLat corner = {-60, -33}) {
        const std::string name = "canal" + std::to_string(row);
        dialogs.openAnswers.push_back({rowOfZones(doses, corner).write(folder, name)});
        columns.chooseFile(row, settings, folder.path());
    }
    /// The map of that path is chosen for the first row, and its first column.
    void take(const std::string& path) {
        dialogs.messages.clear();
        dialogs.questions.clear();
        dialogs.openAnswers.push_back({path});
        columns.chooseFile(0, settings, folder.path());
        columns.chooseColumn(0, 1);
    }
    static std::vector<std::string> doses(int count) {
        std::vector<std::string> texts;
        for (int i = 1; i <= count; ++i) {
            texts.push_back(std::to_string(i));
        }
        return texts;
    }

    DoseColumns columns{session.map().desk()};
};

TEST_F(DoseColumnsTest, AMapThatCannotBeReadLeavesItsRowWithoutOne) {
    choose(0, {"1"});
    dialogs.openAnswers.push_back({folder.write("malo.shp", "nada")});
    columns.chooseFile(0, settings, folder.path());
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(columns.doseLabel(0), "Archivo no cargado");
    EXPECT_TRUE(columns.columns(0).empty());
    EXPECT_FALSE(columns.isBusy());
}

TEST_F(DoseColumnsTest, WarnsOfMapsThatLieFarApart) {
    for (const auto& [metres, warned] : {std::pair(4000.0, false), {6000, true}}) {
        dialogs.messages.clear();
        DoseColumns fresh(session.map().desk());
        fresh.addChannel();
        for (const int row : {0, 1}) {
            dialogs.openAnswers.push_back(
                {rowOfZones({"1"}, {-60, -33 + row * metres / 111320}).write(folder, "m")});
            fresh.chooseFile(row, settings, folder.path());
        }
        ASSERT_EQ(dialogs.messages.size(), warned ? 1U : 0U) << metres;
        EXPECT_TRUE(!warned || dialogs.messages[0].ends_with("muy distanciados uno del otro"));
    }
}

TEST_F(DoseColumnsTest, ConfirmsOnlyWhenEveryRowIsComplete) {
    const auto expectRefusal = [this](const std::string& says) {
        dialogs.messages.clear();
        EXPECT_FALSE(columns.confirm());
        EXPECT_EQ(dialogs.messages, Messages{"Exclamation|Campora|" + says});
    };
    const std::string noMap = "Debe cargar archivos shape para todos los canales";
    expectRefusal("Canal 1: " + noMap);
    choose(0, {"10", "20"});
    expectRefusal("Canal 1: Debe seleccionar una columna de dosis para todos los canales");
    columns.chooseColumn(0, 2);
    expectRefusal("Canal 1: La columna no puede utilizarse porque contiene valores no numéricos\n"
                  "El registro 1 tiene «zona 0». Corrija la tabla o elija otra columna");
    columns.chooseColumn(0, 1);
    columns.addChannel();
    expectRefusal("Canal 2: " + noMap);
    choose(1, {"5"});
    columns.chooseColumn(1, 1);

    std::vector<std::pair<int, int>> progress;
    columns.onProgress = [&](int row, int percent) {
        EXPECT_TRUE(columns.isBusy());
        progress.emplace_back(row, percent);
    };
    dialogs.messages.clear();
    ASSERT_TRUE(columns.confirm());
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(progress.back(), std::pair(1, 100));
    const std::vector<std::unique_ptr<GphPresc>> channels = columns.getChannels();
    ASSERT_EQ(channels.size(), 2U);
    EXPECT_EQ(channels[0]->name(), "canal0.shp");
    EXPECT_EQ(channels[0]->columnaDosis(), 1);
    EXPECT_EQ(channels[1]->polygons()[0].dosis, 5);
}

TEST_F(DoseColumnsTest, AsksBeforeItTakesManyDoses) {
    const std::tuple<int, std::optional<Answer>, bool> rows[] = {
        {15, std::nullopt, true}, {16, Answer::No, false}, {16, Answer::Yes, true}};
    for (const auto& [distinct, answer, confirmed] : rows) {
        dialogs.questions.clear();
        choose(0, doses(distinct));
        columns.chooseColumn(0, 1);
        if (answer) {
            dialogs.answers.push_back(*answer);
        }
        EXPECT_EQ(columns.confirm(), confirmed) << distinct;
        EXPECT_EQ(dialogs.questions.size(), answer ? 1U : 0U);
    }
}

TEST_F(DoseColumnsTest, AsksHowAColumnIsToBeRead) {
    struct Row {
        std::string_view cells;
        std::optional<Answer> answer;  ///< of a person; none: of the batch program
        const char* says;
        ColumnAnswers beforehand;  ///< of the batch program
        std::vector<float> doses;  ///< none where the column is refused
    };
    const ColumnAnswers blanks{true, {}};
    const ColumnAnswers comma{false, DecimalSign::Comma};
    constexpr auto kYes = Answer::Yes;
    constexpr auto kNo = Answer::No;
    const Row rows[] = {
        {"10||30| ", kYes, "columna DOSIS: 2 (la primera, el registro 2)", {}, {10, 0, 30, 0}},
        {"10|", kNo, "recibirán la dosis de resguardo.\n¿Usar la columna así?", {}, {}},
        {"10|", {}, "Para usarla así: --blanks empty", {}, {}},
        {"10|", {}, "", blanks, {10, 0}},
        {"10|12,5|", kYes, "«12,5» (registro 2) se leerá como 12.5.\n¿Usar", {}, {10, 12.5F, 0}},
        {"10|12,5|", {}, "--blanks empty --decimal-column comma", {}, {}},
        {"10|12,5", {}, "", comma, {10, 12.5F}},
        {"950|1.200", kYes, "¿Son miles? Sí: 1200. No: 1.2.", {}, {950, 1200}},
        {"950|1.200", kNo, "«1.200» (registro 2)", {}, {950, 1.2F}},
        {"950|1.200", Answer::Cancel, "(el signo separa los miles)", {}, {}},
        {"950|1.200", {}, "--decimal-column comma|point", {}, {}},
        {"950|1.200", {}, "", comma, {950, 1200}},
        {"950|120 kg/ha", {}, "El registro 2 tiene «120 kg/ha»", {}, {}},
        {"| ", {}, "El registro 1 tiene «»", {}, {}},
        {"10|-9999", {}, "el registro 2 tiene la dosis -9999, que ninguna consola", {}, {}},
        {"10|72.5",
         {},
         "(registro 2: 72.5). Un archivo PRE guarda enteros: 72.5 será 72.",
         {},
         {10, 72.5F}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.cells) + row.says);
        const bool isBatch = !row.answer;
        columns.answers = isBatch ? std::optional(row.beforehand) : std::nullopt;
        const std::vector<std::string_view> cells = split(row.cells, '|');
        take(rowOfZones({cells.begin(), cells.end()}).write(folder, "m"));
        if (row.answer) {
            dialogs.answers = {*row.answer};
            dialogs.yesNoAnswers = {*row.answer == Answer::Yes};
        }
        const bool confirmed = columns.confirm();
        std::string said;
        for (const std::string& text : isBatch ? dialogs.messages : dialogs.questions) {
            said += text;
        }
        EXPECT_NE(said.find(row.says), std::string::npos) << said;
        std::vector<float> doses;
        if (confirmed) {
            const auto channels = columns.getChannels();
            for (const auto& polygon : channels.front()->polygons()) {
                doses.push_back(polygon.dosis);
            }
        }
        EXPECT_EQ(doses, row.doses);
    }
}

TEST_F(DoseColumnsTest, SaysWhatIsWrongWithAMap) {
    ShapeBytes points(1);
    points.addPoint({-60, -33});
    DbaseBytes table({{"DOSIS"}});
    table.addRow({"1"});
    folder.write("puntos.dbf", table.bytes());
    folder.write("sola.prj", "");
    const std::string alone = rowOfZones({"1"}).write(folder, "sola");
    std::filesystem::remove(nativePath(folder.file("sola.dbf")));
    const std::string metres = rowOfZones({"1"}, {5'500'000, 6'300'000}).write(folder, "metros");
    folder.write("metros.prj", "PROJCS[\"POSGAR_2007_5\",GEOGCS[\"G\",DATUM[\"D_POSGAR_2007\"]]]");
    const std::string other = rowOfZones({"1"}).write(folder, "otro");
    folder.write("otro.prj", "GEOGCS[\"Inchauspe\",DATUM[\"D_Campo_Inchauspe\",SPHEROID[]]]");
    const std::string near = rowOfZones({"1"}).write(folder, "igual");
    folder.write("igual.prj", "GEOGCS[\"W\",DATUM[\"D_WGS_1984\",SPHEROID[]]]");
    ZoneMap both = rowOfZones({"1", "2", "3"});
    both.zones[1].rings = {squareAt({-59.9902, -33}, 0.01)};   // 2 % of it over the first
    both.zones[2].rings = {squareAt({-59.98025, -33}, 0.01)};  // half a per cent over the second
    const std::tuple<std::string, bool, std::string> rows[] = {
        {folder.write("puntos.shp", points.bytes()), false, "Los mapas no contienen polígonos"},
        {alone, false, "no tiene tabla de valores: falta sola.dbf"},
        {metres, false, "no son grados sino de «POSGAR_2007_5»"},
        {other, true, "CUIDADO: otro.shp usa el datum «D_Campo_Inchauspe»"},
        {near, true, ""},
        {both.write(folder, "doble"), true,
         "de doble.shp que se superponen (registros): 1 y 2. Cada"},
    };
    for (const auto& [path, isTaken, says] : rows) {
        SCOPED_TRACE(path);
        take(path);
        EXPECT_EQ(columns.columns(0).empty(), !isTaken);
        ASSERT_EQ(dialogs.messages.size(), says.empty() ? 0U : 1U);
        EXPECT_TRUE(says.empty() || dialogs.messages[0].find(says) != std::string::npos)
            << dialogs.messages[0];
    }
}

}  // namespace
}  // namespace campora
