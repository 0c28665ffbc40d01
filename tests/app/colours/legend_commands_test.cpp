// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/legend_commands.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "support/session_desk.h"

namespace campora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

using Bounds = std::vector<double>;

/// A started session whose current file has a scale of its own, with classes from 0 to 100.
struct LegendDesk : SessionDesk {
    LegendDesk() {
        session.start();
        NamedFile& file = add("plan");
        addScale(file, 100);
        scale().setClassNumber(4);
        session.listCommands().selectFile(0);
        canvas.forget();
    }
    [[nodiscard]] ColorScale& scale() {
        return *session.map().files().file(0).File_escalaColores();
    }
    /// The lower bounds and the last upper one.
    [[nodiscard]] Bounds bounds() {
        Bounds found;
        for (const Clase& clase : scale().classes()) {
            found.push_back(clase.lower);
        }
        found.push_back(scale().classes().back().upper);
        return found;
    }

    LegendCommands& commands = session.colours().legend;
};

/// Steps of 10 m, one in 150 with a dose of 3000 and the others from 80 to 89.
std::string creepingReport(const TempFolder& folder, int span = 10) {
    RptBytes bytes(1);
    for (int i = 0; i < 300; ++i) {
        RptBytes::Record record;
        record.position = fixAt(10.0 * i, 0);
        record.realTenths[0] = i % 150 == 75 ? 30000 : 800 + 10 * (i % span);
        bytes.add(record);
    }
    return folder.write("lote.rpt", bytes.bytes());
}

TEST(LegendCommands, ClassesCanBeSpreadOverMostOfTheArea) {
    SessionDesk desk;
    desk.session.start();
    desk.open({creepingReport(desk.folder)});
    const LegendContent& legend = desk.window.legend;
    EXPECT_EQ(legend.remark, "Una clase cubre el 99 % de la superficie trabajada.");
    EXPECT_EQ(legend.offer, "Repartir las clases");
    EXPECT_EQ(desk.session.map().scales().of(false).valueMax(), 3000);
    desk.session.colours().legend.addClass();
    desk.session.colours().legend.spreadClasses(true);
    const ColorScale& scale = desk.session.map().scales().of(false);
    EXPECT_EQ(scale.valueMin(), 80);
    EXPECT_EQ(scale.valueMax(), 89);
    EXPECT_THAT(legend.classes, SizeIs(6)) << "as many as before";
    EXPECT_EQ(legend.classes.front().text, "< 81.5");
    EXPECT_EQ(legend.classes.back().text, "> 87.5");
    EXPECT_EQ(legend.remark + legend.offer, "");
    EXPECT_TRUE(legend.canSpread && legend.spread);

    SessionDesk next;
    next.settings.values = desk.settings.values;
    next.session.start();
    next.open({creepingReport(next.folder)});
    EXPECT_EQ(next.session.map().scales().of(false).valueMax(), 89) << "it is remembered";
    next.session.colours().legend.spreadClasses(false);
    EXPECT_EQ(next.session.map().scales().of(false).valueMax(), 3000);
}

TEST(LegendCommands, ClassesLieAroundTheDoseThatWasPrescribed) {
    SessionDesk desk;
    desk.session.start();
    desk.open({creepingReport(desk.folder)});
    const auto texts = [&desk] {
        std::vector<std::string> found;
        for (const LegendRow& row : desk.window.legend.classes) {
            found.push_back(row.text);
        }
        return found;
    };
    desk.dialogs.inputAnswers = {"-5", "85"};
    desk.session.colours().legend.askTarget();
    EXPECT_THAT(desk.dialogs.inputs, ElementsAre(testing::EndsWith("|100"))) << "as specified";
    EXPECT_THAT(desk.dialogs.messages, SizeIs(1));
    EXPECT_FALSE(desk.window.legend.aroundTarget);
    desk.session.colours().legend.askTarget();
    EXPECT_TRUE(desk.window.legend.aroundTarget);
    EXPECT_THAT(texts(), ElementsAre("0", "0 - 68", "68 - 76.5", "76.5 - 80.8", "80.8 - 89.3",
                                     "89.3 - 93.5", "93.5 - 102", "> 102"));
    desk.session.colours().legend.useReadyRamp(1);

    SessionDesk next;
    next.settings.values = desk.settings.values;
    next.session.start();
    next.open({creepingReport(next.folder)});
    EXPECT_TRUE(next.window.legend.aroundTarget) << "it is remembered";
    next.session.colours().legend.equalClasses();
    EXPECT_FALSE(next.window.legend.aroundTarget);
    const ColorScale& scale = next.session.map().scales().of(false);
    EXPECT_EQ(scale.valueMax(), 3000);
    EXPECT_EQ(scale.getClass(0).color, readyRamps()[1].start) << "so is the ramp";
}

TEST(LegendCommands, TheNumberOfClassesStaysWithinItsLimits) {
    const auto classesAfter = [](const char* typed, std::size_t refusals) {
        LegendDesk desk;
        desk.dialogs.inputAnswers = {typed};
        desk.commands.askClassNumber();
        EXPECT_THAT(desk.dialogs.inputs, ElementsAre(HasSubstr("|Escala de colores|4")));
        EXPECT_THAT(desk.dialogs.messages, SizeIs(refusals)) << typed;
        return desk.scale().count();
    };
    EXPECT_EQ(classesAfter(" 1 ", 0), 1);
    EXPECT_EQ(classesAfter("64", 0), 64);
    EXPECT_EQ(classesAfter("", 0), 4);
    for (const char* typed : {"0", "65", "2,5"}) {
        EXPECT_EQ(classesAfter(typed, 1), 4) << typed;
    }
    LegendDesk desk;
    desk.scale().setClassNumber(64);
    desk.commands.addClass();
    EXPECT_EQ(desk.scale().count(), 64);
    EXPECT_THAT(desk.dialogs.messages, ElementsAre(HasSubstr("1 a 64: 65")));
    desk.scale().setClassNumber(1);
    desk.commands.removeClass();
    EXPECT_EQ(desk.scale().count(), 1);
}

TEST(LegendCommands, ExtremesAreTypedInAnyForm) {
    const Bounds before = {0, 25, 50, 75, 100};
    // What is typed, the classes afterwards and what is said.
    const std::tuple<std::vector<std::string>, Bounds, const char*> rows[] = {
        {{"-1,5", "0.5"}, {-1.5, -1, -0.5, 0, 0.5}, nullptr},
        {{"7", "7"}, before, "menor que el máximo: 7 y 7"},
        {{"1", "alto"}, before, "alto"},
        {{"1", ""}, before, nullptr},
    };
    for (const auto& [answers, bounds, says] : rows) {
        SCOPED_TRACE(answers.back());
        LegendDesk desk;
        desk.dialogs.inputAnswers.assign(answers.begin(), answers.end());
        desk.commands.askExtremes();
        EXPECT_EQ(desk.bounds(), bounds);
        EXPECT_TRUE(desk.dialogs.inputAnswers.empty());
        EXPECT_EQ(desk.dialogs.messages.size(), says == nullptr ? 0U : 1U);
        EXPECT_TRUE(says == nullptr || desk.dialogs.messages.at(0).find(says) != std::string::npos);
    }
}

TEST(LegendCommands, FixedClassesAreNotTouched) {
    using Command = void (LegendCommands::*)();
    for (const Command command : {&LegendCommands::addClass, &LegendCommands::removeClass,
                                  &LegendCommands::askClassNumber, &LegendCommands::askExtremes}) {
        LegendDesk desk;
        desk.scale().allowClassEdit = false;
        (desk.commands.*command)();
        EXPECT_EQ(desk.bounds(), (Bounds{0, 25, 50, 75, 100}));
        EXPECT_THAT(
            desk.dialogs.messages,
            ElementsAre("Exclamation|Campora|Las clases de esta escala no se pueden cambiar"));
        EXPECT_TRUE(desk.dialogs.inputs.empty());
    }
}

TEST(LegendCommands, RampColoursAreChosenOneByOne) {
    LegendDesk desk;
    desk.scale().setClassNumber(3);
    const auto colors = [&desk] {
        std::vector<std::uint32_t> found;
        for (const LegendRow& row : desk.window.legend.classes) {
            found.push_back(row.color.value);
        }
        return found;
    };
    desk.dialogs.colorAnswers = {std::nullopt, Color{1}, Color{2}, Color{9}, Color{0x100}};
    desk.commands.chooseRampStart();
    EXPECT_THAT(colors(), ElementsAre(0x00FFFFU, 0x00FF00U, 0x0000FFU)) << "cancelled";
    desk.commands.chooseRampStart();
    desk.commands.chooseRampMiddle();
    desk.commands.chooseRampEnd();
    EXPECT_THAT(colors(), ElementsAre(1U, 2U, 9U));
    desk.commands.dropRampMiddle();
    EXPECT_THAT(colors(), ElementsAre(1U, 5U, 9U));
    desk.commands.chooseClassColor(1);
    EXPECT_THAT(colors(), ElementsAre(1U, 0x100U, 9U));
}

}  // namespace
}  // namespace campora
