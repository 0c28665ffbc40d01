// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/dose_columns.h"

#include <gtest/gtest.h>

#include "app/dose_choice.h"
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
        columns.chooseFile(row);
    }
    static std::vector<std::string> doses(int count) {
        std::vector<std::string> texts;
        for (int i = 1; i <= count; ++i) {
            texts.push_back(std::to_string(i));
        }
        return texts;
    }

    DoseColumns columns{session};
};

TEST_F(DoseColumnsTest, TellsWhatAColumnHolds) {
    EXPECT_EQ(columns.doseLabel(0), "Archivo no cargado");
    choose(0, {"10", "20", "30", "20"});
    EXPECT_EQ(columns.columns(0), (std::vector<std::string>{"DOSIS", "NOMBRE"}));
    columns.chooseColumn(0, 2);
    EXPECT_EQ(columns.doseLabel(0), "Invalido: Valores No Numericos");
    columns.chooseColumn(0, 1);
    EXPECT_EQ(columns.doseLabel(0), "4 dosis diferentes");
    dialogs.openAnswers.push_back({});
    columns.chooseFile(0);  // cancelled
    EXPECT_EQ(columns.column(0), 1);
    choose(0, {"1"});  // another map has other columns
    EXPECT_EQ(columns.column(0), GphPresc::kNoColumn);
}

TEST_F(DoseColumnsTest, AMapThatCannotBeReadLeavesItsRowWithoutOne) {
    choose(0, {"1"});
    dialogs.openAnswers.push_back({folder.write("malo.shp", "nada")});
    columns.chooseFile(0);
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(columns.doseLabel(0), "Archivo no cargado");
    EXPECT_TRUE(columns.columns(0).empty());
    EXPECT_FALSE(columns.isBusy());
}

TEST_F(DoseColumnsTest, WarnsOfMapsThatLieFarApart) {
    for (const auto& [metres, warned] : {std::pair(4000.0, false), {6000, true}}) {
        dialogs.messages.clear();
        DoseColumns fresh(session);
        fresh.addChannel();
        for (const int row : {0, 1}) {
            dialogs.openAnswers.push_back(
                {rowOfZones({"1"}, {-60, -33 + row * metres / 111320}).write(folder, "m")});
            fresh.chooseFile(row);
        }
        EXPECT_EQ(dialogs.messages,
                  warned ? Messages{"Exclamation|Campora|CUIDADO: Los mapas que está cargando "
                                    "parecen estar muy distanciados uno del otro"}
                         : Messages{})
            << metres;
        EXPECT_EQ(fresh.columns(1).size(), 2U);
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
    expectRefusal("Canal 1: La columna no puede utilizarse porque contiene valores no numéricos");
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
    EXPECT_EQ(progress,
              (std::vector<std::pair<int, int>>{{0, 0}, {0, 50}, {0, 100}, {1, 0}, {1, 100}}));
    EXPECT_EQ(clock.events, 5 + 3 + 2);  // while the maps were read too
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

struct DoseChoiceTest : testing::Test, SessionDesk {
    DoseChoiceTest() {
        SetList set;
        for (const double dose : {0.0, 50.0, 72.5}) {
            set.addDosis(dose);
        }
        scale.loadFromSetList(set, 0);
    }

    ColorScale scale;
};

TEST_F(DoseChoiceTest, OffersTheDosesOfTheScale) {
    DoseChoice choice(&scale, 50, session);
    ASSERT_EQ(choice.legend().classes.size(), 3U);
    EXPECT_EQ(choice.legend().classes[2], (LegendRow{scale.getClass(2).color, "72.5"}));
    EXPECT_EQ(choice.way(), DoseChoice::Way::Existing);
    choice.selectClass(3);
    EXPECT_EQ(choice.accept(), std::nullopt);
    EXPECT_EQ(dialogs.messages, Messages{"Exclamation|Campora|Debe seleccionar una dosis"});
    choice.selectClass(2);
    EXPECT_EQ(choice.accept(), 72.5F);
}

TEST_F(DoseChoiceTest, TakesANewDose) {
    DoseChoice choice(nullptr, 12.5F, session);
    EXPECT_EQ(choice.way(), DoseChoice::Way::New);
    EXPECT_EQ(choice.accept(), 12.5F);
    const std::vector<std::pair<std::string, std::optional<float>>> cases{
        {" 80 ", 80.F}, {"7,25", 7.25F}, {"", std::nullopt}, {"cien", std::nullopt}, {"5x", {}}};
    for (const auto& [text, dose] : cases) {
        dialogs.messages.clear();
        choice.setText(text);
        EXPECT_EQ(choice.accept(), dose) << text;
        EXPECT_EQ(dialogs.messages,
                  dose ? Messages{}
                       : Messages{"Exclamation|Campora|La dosis debe ser un valor numérico"});
    }
}

}  // namespace
}  // namespace campora
