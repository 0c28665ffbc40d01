// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/presc_commands.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/session_desk.h"
#include "support/zone_map.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

struct PrescCommandsTest : testing::Test, SessionDesk {
    PrescCommandsTest() {
        session.start();
        commands.chooseChannels = [this] { return std::move(chosen); };
        commands.askDose = [this](const ColorScale& scale, float current) {
            asked.emplace_back(scale.count(), current);
            return std::exchange(answer, std::nullopt);
        };
    }
    /// A prescription of maps of these doses, one a channel.
    void create(const std::vector<std::vector<std::string>>& channels) {
        for (const std::vector<std::string>& doses : channels) {
            auto presc = std::make_unique<GphPresc>();
            const std::string name = "canal" + std::to_string(chosen.size() + 1);
            const std::string path = rowOfZones(doses).write(folder, name);
            ASSERT_TRUE(presc->loadFromFile(path, session.map().desk()));
            presc->setColumnaDosis(1);
            chosen.push_back(std::move(presc));
        }
        commands.mnuFilePrescript();
    }
    /// The dose tool on the middle of zone n.
    void clickOn(int n) {
        session.tools().setTool(ToolId::PrescDosis);
        const CanvasPoint at =
            session.display().view().transform().mapToScreen(-59.995 + 0.01 * n, -32.995);
        session.tools().press(MapTools::Button::Left, at);
        session.tools().release(MapTools::Button::Left, at);
    }
    [[nodiscard]] Names legend() const {
        Names values;
        for (const LegendRow& row : window.legend.classes) {
            values.push_back(row.text);
        }
        return values;
    }

    PrescCommands& commands = session.prescCommands();
    std::vector<std::unique_ptr<GphPresc>> chosen;
    std::vector<std::pair<int, float>> asked;
    std::optional<float> answer;
};

TEST_F(PrescCommandsTest, MakesAPrescriptionBesideWhatIsOpenAndClosesIt) {
    commands.mnuFilePrescript();  // cancelled
    EXPECT_FALSE(commands.isOpen());
    ASSERT_TRUE(open({report("a.rpt")}, true));
    create({{"10", "20"}, {"5", "6"}});
    EXPECT_EQ(listed(), (Names{"Prescripción", "a.rpt"}));
    EXPECT_EQ(legend(), (Names{"0", "10", "20"}));
    EXPECT_EQ(commands.prescriptCaption(), TextId::ActionClosePrescription);

    session.fileCommands().reload();
    EXPECT_EQ(listed(), (Names{"Prescripción", "a.rpt"}));
    session.colours().modes.mnuColorScaleSelCH(1);
    EXPECT_EQ(legend(), (Names{"0", "5", "6"}));

    session.tools().setTool(ToolId::PrescDosis);
    commands.mnuFilePrescript();
    EXPECT_EQ(listed(), Names{"a.rpt"});
    EXPECT_EQ(session.tools().tool(), ToolId::Pan);
    EXPECT_EQ(commands.prescriptCaption(), TextId::ActionNewPrescription);
}

TEST_F(PrescCommandsTest, ChangedDosesAreNotLostUnasked) {
    create({{"10", "20"}});
    answer = 15.0F;
    clickOn(0);
    dialogs.yesNoAnswers = {false, false, false};
    commands.mnuFilePrescript();
    session.listCommands().removeCurrentFile();
    dialogs.openAnswers = {{report("a.rpt")}};
    session.fileCommands().fileOpen();
    EXPECT_EQ(dialogs.questions.size(), 3U);
    ASSERT_TRUE(commands.isOpen());

    dialogs.saveAnswers = {{folder.file("zonas.pre"), 0}};
    dialogs.inputAnswers = {"100", "0"};
    commands.mnuFileSavePrescript();
    ASSERT_FALSE(dialogs.messages.empty()) << "what was written";
    commands.mnuFilePrescript();
    EXPECT_FALSE(commands.isOpen()) << "saved: nothing to ask";
}

TEST_F(PrescCommandsTest, WhatWasSavedIsReadBackAndJudged) {
    std::vector<std::unique_ptr<PrescriptionCheckup>> shown;
    commands.showCheck = [&](auto checkup) { shown.push_back(std::move(checkup)); };
    create({{"10", "20"}});
    EXPECT_EQ(commands.whyNotCheck(), TextId::WhyNoGrid);
    const std::string path = folder.file("zonas.pre");
    dialogs.saveAnswers = {{path, 0}};
    dialogs.inputAnswers = {"100", "0"};
    commands.mnuFileSavePrescript();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0]->page().agrees, std::optional(true));
    shown[0]->setTank("100");
    shown[0]->setProduct(0, "Urea");
    shown[0]->setLimits(0, "", "15,5");
    EXPECT_NE(shown[0]->page().warnings.at(0).find("(de – a 15.5)"), std::string::npos);

    // Other doses than those of the file, by the settings that were kept.
    answer = 30.0F;
    clickOn(0);
    commands.check();
    EXPECT_EQ(shown.at(1)->page().agrees, std::optional(false));
    EXPECT_EQ(shown[1]->tank() + shown[1]->product(0) + shown[1]->most(0), "100Urea15,5");

    commands.prescription()->dosesSaved();
    commands.mnuFilePrescript();
    ASSERT_TRUE(open({path}));
    commands.check();
    EXPECT_EQ(shown.at(2)->page().agrees, std::optional(true)) << "the open grid is the file's";
    EXPECT_NE(shown.at(2)->page().verdict, shown.at(0)->page().verdict) << "of what was asked for";
}

TEST_F(PrescCommandsTest, TheDoseToolChangesAZoneOfTheCurrentChannel) {
    create({{"10", "20"}, {"5", "6"}});
    commands.prescription()->setCurrentChannel(1);
    clickOn(1);  // cancelled
    EXPECT_EQ(legend(), (Names{"0", "10", "20"}));
    answer = 7.5F;
    clickOn(0);
    clickOn(2);  // where no zone is
    EXPECT_EQ(asked, (std::vector<std::pair<int, float>>{{3, 6.F}, {3, 5.F}}));
    EXPECT_EQ(commands.prescription()->channel(0).polygons()[0].dosis, 10);
    EXPECT_EQ(commands.prescription()->channel(1).polygons()[0].dosis, 7.5F);
    const SummaryRow product = window.summary.back();
    EXPECT_EQ(product.property, "Producto total (C 2)");
    EXPECT_TRUE(product.value.ends_with(" unid")) << product.value;
    EXPECT_NEAR(std::stod(product.value), (8 + 6) * 103.95, 15) << "in whole doses, as a PRE";

    ASSERT_TRUE(open({folder.file("canal1.shp")}));
    session.map().removeFile(commands.prescription());
    clickOn(0);
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_EQ(session.tools().tool(), ToolId::Pan);
}

TEST_F(PrescCommandsTest, ASaveThatIsCancelledOrNoNumberWritesNothing) {
    commands.mnuFileSavePrescript();
    commands.saveVrt();
    EXPECT_TRUE(dialogs.saves.empty());  // nothing to save
    create({{"10"}});
    const std::string path = folder.file("uno.pre");
    dialogs.saveAnswers = {{"", 0}, {path, 0}, {path, 0}, {path, 0}, {path, 0}};
    dialogs.inputAnswers = {"", "ancho", std::nullopt, "100", std::nullopt};
    for (int i = 0; i < 5; ++i) {
        commands.mnuFileSavePrescript();
    }
    EXPECT_EQ(dialogs.messages,
              Names{"Exclamation|Campora|el ancho de las celdas debe ser mayor que 0 y hasta "
                    "32767 metros: ancho"});
    EXPECT_EQ(dialogs.inputFiles.back(), folder.file("canal1.shp"));
    for (const auto& answers : std::vector<std::deque<std::optional<std::string>>>{
             {std::nullopt}, {"20", std::nullopt}, {"20", "Lote 7", std::nullopt}}) {
        dialogs.saveAnswers = {{path, 0}};
        dialogs.inputAnswers = answers;
        commands.saveVrt();
        EXPECT_EQ(dialogs.inputFiles.back(), path);
    }
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(nativePath(path)));
}

}  // namespace
}  // namespace campora
