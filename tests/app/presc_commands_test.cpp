// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc_commands.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/session_desk.h"
#include "support/zone_map.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

struct PrescCommandsTest : testing::Test {
    PrescCommandsTest() {
        desk.session.start();
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
            const std::string path = rowOfZones(doses).write(desk.folder, name);
            ASSERT_TRUE(presc->loadFromFile(path, desk.dialogs, desk.session.texts()));
            presc->setColumnaDosis(1);
            chosen.push_back(std::move(presc));
        }
        commands.mnuFilePrescript();
    }
    /// The dose tool on the middle of zone n.
    void clickOn(int n) {
        desk.session.tools().setTool(MapTools::Tool::PrescDosis);
        const CanvasPoint at =
            desk.session.view().transform().mapToScreen(-59.995 + 0.01 * n, -32.995);
        desk.session.tools().press(MapTools::Button::Left, at);
        desk.session.tools().release(MapTools::Button::Left, at);
    }
    [[nodiscard]] Names legend() const {
        Names values;
        for (const LegendRow& row : desk.window.legend.classes) {
            values.push_back(row.text);
        }
        return values;
    }

    SessionDesk desk;
    PrescCommands& commands = desk.session.prescription();
    std::vector<std::unique_ptr<GphPresc>> chosen;
    std::vector<std::pair<int, float>> asked;
    std::optional<float> answer;
};

TEST_F(PrescCommandsTest, MakesAPrescriptionBesideWhatIsOpenAndClosesIt) {
    commands.mnuFilePrescript();  // cancelled
    EXPECT_FALSE(commands.isOpen());
    ASSERT_TRUE(desk.session.loadFile(desk.report("a.rpt"), true, true));
    create({{"10", "20"}, {"5", "6"}});
    EXPECT_EQ(desk.listed(), (Names{"Prescripción", "a.rpt"}));
    EXPECT_EQ(desk.window.selected, 0);
    EXPECT_EQ(desk.window.files[0].icon, "dosis");
    EXPECT_EQ(legend(), (Names{"0", "10", "20"}));
    EXPECT_EQ(commands.prescriptCaption(), TextId::ActionClosePrescription);

    desk.session.reloadFiles();
    EXPECT_EQ(desk.listed(), (Names{"Prescripción", "a.rpt"}));
    desk.session.modes().mnuColorScaleSelCH(1);
    EXPECT_EQ(legend(), (Names{"0", "5", "6"}));

    desk.session.tools().setTool(MapTools::Tool::PrescDosis);
    commands.mnuFilePrescript();
    EXPECT_EQ(desk.listed(), Names{"a.rpt"});
    EXPECT_EQ(desk.session.tools().tool(), MapTools::Tool::None);
    EXPECT_EQ(commands.prescriptCaption(), TextId::ActionNewPrescription);
    EXPECT_TRUE(desk.dialogs.messages.empty());
}

TEST_F(PrescCommandsTest, ChangedDosesAreNotLostUnasked) {
    create({{"10", "20"}});
    answer = 15.0F;
    clickOn(0);
    desk.dialogs.yesNoAnswers = {false, false, false};
    commands.mnuFilePrescript();
    desk.session.removeCurrentFile();
    desk.dialogs.openAnswers = {{desk.report("a.rpt")}};
    desk.session.fileCommands().fileOpen();
    EXPECT_EQ(desk.dialogs.questions.size(), 3U);
    ASSERT_TRUE(commands.isOpen());

    desk.dialogs.saveAnswers = {{desk.folder.file("zonas.pre"), 0}};
    desk.dialogs.inputAnswers = {"100", "0"};
    commands.mnuFileSavePrescript();
    ASSERT_FALSE(desk.dialogs.messages.empty()) << "what was written";
    commands.mnuFilePrescript();
    EXPECT_FALSE(commands.isOpen()) << "saved: nothing to ask";
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
    const SummaryRow product = desk.window.summary.back();
    EXPECT_EQ(product.property, "Producto total (C 2)");
    EXPECT_NEAR(std::stod(product.value), 13.5 * 103.95, 1);

    ASSERT_TRUE(desk.session.loadFile(desk.folder.file("canal1.shp"), false, true));
    desk.session.removeFile(commands.prescription());
    clickOn(0);
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_EQ(desk.session.tools().tool(), MapTools::Tool::None);
}

TEST_F(PrescCommandsTest, TheLegendChangesADoseAndTheSummaryFollows) {
    create({{"10", "20", "10"}});
    desk.dialogs.inputAnswers.push_back("40");
    desk.session.legend().askClassValue(1);
    EXPECT_EQ(legend(), (Names{"0", "20", "40"}));
    EXPECT_EQ(desk.window.legend.valueChangeCaption, "Cambiar Dosis");
    EXPECT_NEAR(std::stod(desk.window.summary.back().value), 100 * 103.95, 10);
}

TEST_F(PrescCommandsTest, SavesAPreThatShowsTheChangedDoses) {
    create({{"10", "20"}});
    answer = 33.F;
    clickOn(1);
    const std::string path = desk.folder.file("salida/uno.pre");
    std::filesystem::create_directories(nativePath(desk.folder.file("salida")));
    desk.dialogs.saveAnswers.push_back({path, 0});
    desk.dialogs.inputAnswers = {"50", "1"};
    commands.mnuFileSavePrescript();
    ASSERT_EQ(desk.dialogs.saves.size(), 1U);
    EXPECT_EQ(desk.dialogs.saves[0].caption, "Guardar como...");
    EXPECT_EQ(desk.dialogs.saves[0].folder, desk.session.programFolder());
    EXPECT_EQ(desk.dialogs.saves[0].name, "canal1.pre");
    EXPECT_EQ(desk.dialogs.saves[0].filters[0].caption, "Archivo de Prescripción PRE");
    EXPECT_EQ(desk.settings.values["SavePath"], desk.folder.file("salida/"));
    EXPECT_EQ(desk.dialogs.inputs[0], "192|Campora|20");
    EXPECT_TRUE(std::filesystem::exists(nativePath(desk.folder.file("salida/uno.rpt"))));

    ASSERT_TRUE(desk.session.loadFile(path, true, true));
    EXPECT_FALSE(commands.isOpen());
    EXPECT_EQ(legend(), (Names{"1", "10", "33"}));
}

TEST_F(PrescCommandsTest, SavesAVrtUnderItsName) {
    create({{"10", "20"}});
    const std::string path = desk.folder.file("uno.vrt");
    desk.dialogs.saveAnswers.push_back({path, 0});
    desk.dialogs.inputAnswers = {"20.5", "Lote 7", "maiz"};
    commands.mnuFileSaveVrt();
    EXPECT_EQ(desk.dialogs.saves[0].name, "canal1.vrt");
    EXPECT_TRUE(desk.dialogs.inputs[1].ends_with("|Campora|canal1"));
    ASSERT_TRUE(desk.session.loadFile(path, true, true));
    ASSERT_GE(desk.window.summary.size(), 3U);
    EXPECT_EQ(desk.window.summary[0].value, "Lote 7 ");
    EXPECT_EQ(desk.window.summary[1].value, "maiz ");
    EXPECT_TRUE(desk.window.summary[2].value.starts_with("20.5 "));
}

TEST_F(PrescCommandsTest, ASaveThatIsCancelledOrNoNumberWritesNothing) {
    commands.mnuFileSavePrescript();
    commands.mnuFileSaveVrt();
    EXPECT_TRUE(desk.dialogs.saves.empty());  // nothing to save
    create({{"10"}});
    const std::string path = desk.folder.file("uno.pre");
    desk.dialogs.saveAnswers = {{"", 0}, {path, 0}, {path, 0}, {path, 0}};
    desk.dialogs.inputAnswers = {"", "ancho", ""};
    commands.mnuFileSavePrescript();
    commands.mnuFileSavePrescript();
    commands.mnuFileSavePrescript();
    EXPECT_EQ(desk.dialogs.messages,
              Names{"Exclamation|Campora|el ancho de las celdas debe ser mayor que 0 y hasta "
                    "32767 metros: ancho"});
    commands.mnuFileSaveVrt();
    EXPECT_FALSE(std::filesystem::exists(nativePath(path)));
}

TEST_F(PrescCommandsTest, AMapOpensAsAFileOfItsOwn) {
    const std::string path = rowOfZones({"10", "20"}).write(desk.folder, "lote");
    desk.session.style().colors.shape = Color::rgb(1, 2, 3);
    desk.session.style().graduated = false;  // which is about records, not about maps
    ASSERT_TRUE(desk.session.loadFile(path, true, true));
    EXPECT_EQ(desk.window.files, (std::vector<FileListRow>{{"lote.shp", "shpfile"}}));
    EXPECT_TRUE(desk.window.summary.empty());
    EXPECT_EQ(legend().size(), 6U);
    const std::vector<std::string> zones = desk.canvas.callsOf("polypolygon");
    ASSERT_FALSE(zones.empty());
    EXPECT_TRUE(zones.back().starts_with("polypolygon fill=0x030201")) << zones.back();

    EXPECT_FALSE(desk.session.loadFile(desk.folder.file("falta.shp"), true, true));
    ASSERT_EQ(desk.dialogs.messages.size(), 1U);
    EXPECT_NE(desk.dialogs.messages[0].find("falta.shp"), std::string::npos);
    EXPECT_EQ(desk.listed(), Names{"lote.shp"});
}

TEST_F(PrescCommandsTest, TheOpenDialogTellsTheKindOfAMap) {
    const std::string path = rowOfZones({"10"}).write(desk.folder, "lote");
    Names kinds;
    desk.dialogs.openSelections = {{path}, {desk.folder.write("malo.shp", "nada")}, {path}};
    desk.dialogs.openAnswers.push_back({});
    std::size_t previewed = 0;
    desk.window.onViewControls = [&] { previewed += desk.window.toolText == "Poligonos" ? 1 : 0; };
    desk.session.fileCommands().fileOpen();
    EXPECT_GE(previewed, 1U);  // it stood there while the next one was drawn
    EXPECT_EQ(desk.window.toolText, "");
    EXPECT_TRUE(desk.listed().empty());
    EXPECT_TRUE(desk.dialogs.messages.empty());
}

}  // namespace
}  // namespace campora
