// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/color_mode_commands.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "app/colours/drawing_commands.h"
#include "base/typed_number.h"
#include "support/session_desk.h"
#include "work/gph_track.h"

namespace campora {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;

using ModeHandler = void (ColorModeCommands::*)();
using DrawingHandler = void (DrawingCommands::*)();
using Lines = std::vector<std::string>;

constexpr std::uint32_t kSprayer = 0x6001;
constexpr std::uint32_t kSeeder = 0x2104;

/// A started session with its modes.
struct ModesDesk : SessionDesk {
    ModesDesk() {
        session.start();
        forget();
    }
    /// A report of two steps of 10 m with the alarm of bit 8; 50 % too much in the first channel,
    /// 20 % too little in the second.
    void openReport(const std::string& name, int channels = 1, std::uint32_t serial = kSprayer) {
        RptBytes bytes(channels, serial);
        for (int i = 0; i < 3; ++i) {
            RptBytes::Record record;
            record.position = fixAt(10.0 * i, 0);
            record.realTenths = {1500, 800, 100, 100};
            record.spec = {100, 100, 10, 10};
            record.alarms = 1U << 8U;
            bytes.add(record);
        }
        ASSERT_TRUE(open({folder.write(name, bytes.bytes())}));
        forget();
    }
    void forget() {
        canvas.forget();
        window.commandChanges = 0;
        dialogs.messages.clear();
    }
    /// Fill colours of the polygons drawn since; steps of one colour may share a polygon.
    [[nodiscard]] Lines fills() const {
        Lines found;
        for (const std::string& call : canvas.callsOf("polygon")) {
            found.push_back(call.substr(call.find("fill=") + 5, 8));
        }
        return found;
    }
    [[nodiscard]] ColorMode mode() { return session.map().style().mode; }

    ColorModeCommands& modes = session.colours().modes;
    DrawingCommands& drawing = session.colours().drawing;
};

struct ColorModeCommandsTest : testing::Test, ModesDesk {};

TEST(TypedNumber, TakesEitherDecimalSymbolAndNothingElse) {
    const std::map<std::string, double> numbers = {{"12,5", 12.5}, {"12.5", 12.5}, {" 7 ", 7},
                                                   {"+3", 3},      {"-0,5", -0.5}, {".5", 0.5}};
    for (const auto& [typed, number] : numbers) {
        EXPECT_EQ(typedNumber(typed), number) << typed;
    }
    for (const char* typed :
         {"", "doce", "1.234,5", "12 m", "+-3", "1e3", "nan", "inf", "1000000000000000"}) {
        EXPECT_EQ(typedNumber(typed), std::nullopt) << typed;
    }
}

TEST_F(ColorModeCommandsTest, SelectedAlarmsColourThePointsThatHaveThem) {
    openReport("lote.rpt");
    modes.mnuAlarmsPaint();
    const Lines alarm = {"0x0000FF"};
    const Lines none = {"0x00FF00"};
    EXPECT_EQ(fills(), alarm);
    const auto toggle = [this](int index) {
        forget();
        modes.mnuAlarmsAlarm(index);
        return fills();
    };
    forget();
    modes.mnuAlarmsNone();
    EXPECT_EQ(fills(), none);
    EXPECT_EQ(toggle(8), none) << "of the seeders";
    EXPECT_EQ(toggle(40), alarm) << "of the sprayers";
    EXPECT_EQ(toggle(40), none);
    EXPECT_EQ(toggle(64), Lines{}) << "beyond the menu";
    forget();
    modes.mnuAlarmsAll();
    EXPECT_EQ(fills(), alarm);
    const std::vector<AlarmEntry> entries = modes.alarmEntries();
    EXPECT_EQ(entries.at(32), (AlarmEntry{"Ondel - Presión Máxima", true, true}));
    EXPECT_EQ(entries.at(0), (AlarmEntry{"Falla de siembra", true, true}));
}

TEST(ColorModeCommands, TheThreeMapsExcludeEachOther) {
    const std::pair<ModeHandler, ColorMode> maps[] = {
        {&ColorModeCommands::mnuAlarmsPaint, ColorMode::Alarm},
        {&ColorModeCommands::mnuColorDateMap, ColorMode::Date},
        {&ColorModeCommands::mnuColorErrorMap, ColorMode::Error},
    };
    for (const auto& [first, firstMode] : maps) {
        for (const auto& [second, secondMode] : maps) {
            ModesDesk desk;
            desk.openReport("lote.rpt");
            (desk.modes.*first)();
            EXPECT_TRUE(desk.mode() == firstMode);
            const bool isAlarm = firstMode == ColorMode::Alarm;
            EXPECT_EQ(desk.window.legend.classes.empty(), isAlarm) << "no dose has a colour there";
            desk.session.map().scales().of(false).setClassNumber(3);
            desk.forget();
            (desk.modes.*second)();
            if (isAlarm && second == first) {
                EXPECT_EQ(desk.session.map().scales().of(false).count(), 3)
                    << "as the user left them";
            }
            EXPECT_EQ(desk.mode(), first == second ? ColorMode::Dose : secondMode);
            EXPECT_EQ(desk.redraws(), 1U);
            EXPECT_EQ(desk.window.commandChanges, 1);
        }
    }
}

TEST_F(ColorModeCommandsTest, TheErrorMapTellsColoursAndHectares) {
    openReport("lote.rpt", 2);
    modes.mnuColorErrorMap();
    EXPECT_EQ(fills(), Lines{"0xFF00FF"}) << "15 % in total";
    EXPECT_EQ(window.summary.back(), (SummaryRow{"Hectareas Error", "0.04 Has"}));
    dialogs.inputAnswers = {"16"};
    modes.mnuColorErrorMapMin();
    EXPECT_EQ(window.summary.back().value, "0 Has");
    modes.mnuColorScaleSelCH(1);
    EXPECT_EQ(window.summary.back().value, "0.04 Has") << "20 % in the second channel";
    EXPECT_EQ(window.legend.classes.size(), 1U) << "one specified dose";
    modes.mnuColorScaleSelTotal();
    EXPECT_EQ(window.summary.back().value, "0 Has");
    EXPECT_EQ(session.map().scales().of(false).valueMax(), 230) << "the doses of the total again";
    modes.mnuColorDateMap();
    EXPECT_EQ(window.summary.back(), (SummaryRow{"Hectareas Error", " "}));
}

TEST(ColorModeCommands, TheAllowedErrorIsTakenAsTyped) {
    const std::tuple<const char*, std::optional<float>, const char*> rows[] = {
        {"12,5", 12.5F, "Errores > 12,5%"},
        {"20%", 20.0F, "Errores > 20%"},
        {"mucho", std::nullopt, nullptr},
    };
    for (const auto& [answer, limit, legend] : rows) {
        SCOPED_TRACE(answer);
        ModesDesk desk;
        desk.locale = FixedLocale(',');
        desk.openReport("lote.rpt");
        desk.session.map().style().errorLimit = 2.5F;
        desk.dialogs.inputAnswers = {answer};
        desk.modes.mnuColorErrorMapMin();
        EXPECT_EQ(desk.session.map().style().errorLimit, limit.value_or(2.5F));
        EXPECT_EQ(desk.mode() == ColorMode::Error, limit.has_value());
        if (limit) {
            EXPECT_EQ(desk.window.legend.reference.back().text, legend);
        } else {
            EXPECT_THAT(desk.dialogs.messages, ElementsAre(HasSubstr(answer)));
        }
    }
}

TEST_F(ColorModeCommandsTest, GraduatedWorkTakesTheColoursOfTheScale) {
    openReport("lote.rpt");
    ASSERT_TRUE(session.map().style().graduated);
    modes.mnuEditGraduated();
    EXPECT_EQ(fills(), Lines{"0xFF8080"});
    EXPECT_TRUE(window.legend.classes.empty());
    forget();
    modes.mnuEditGraduated();
    EXPECT_EQ(fills(), Lines{"0x00FFFF"});
    EXPECT_FALSE(window.legend.classes.empty());

    ASSERT_TRUE(open({track("log0001.nbr", 5)}));
    modes.mnuEditGraduatedByLtsMin();
    EXPECT_TRUE(session.map().style().by == GraduatedBy::Minute);
    EXPECT_EQ(window.legend.unit, "lts/min");
    modes.mnuEditGraduatedByLtsHect();
    EXPECT_TRUE(session.map().style().by == GraduatedBy::Hectare);
    EXPECT_EQ(window.legend.unit, "lt/hect");
}

TEST_F(ColorModeCommandsTest, LitresAndUnitsOfSeedHaveAScaleEach) {
    open({report("siembra.rpt", 30000, kSeeder)});
    open({report("lote.rpt", 1000)});
    const auto shown = [this](int row) {
        session.listCommands().selectFile(row);
        return window.legend.classes.front().text + " " + window.legend.unit;
    };
    EXPECT_EQ(shown(0), "3000 - 3000.4 unid/hect");
    EXPECT_EQ(shown(1), "100 - 100.4 lt/hect");
    session.colours().legend.addClass();
    EXPECT_EQ(session.map().scales().of(false).count(), 6);
    forget();
    session.display().redraw();
    const Lines colours = fills();
    EXPECT_EQ(colours.front(), "0x00FFFF") << "the least of the litres";
    EXPECT_EQ(colours.back(), "0x00FF00") << "the middle of the seeds";
    session.listCommands().removeCurrentFile();
    EXPECT_EQ(window.legend.unit, "unid/hect");
}

TEST(DrawingCommands, ASwathWidthIsGivenToAllWork) {
    // The metres afterwards, 20 before, and what is said.
    const std::tuple<const char*, float, const char*> rows[] = {
        {"250", 200, nullptr}, {"18,5", 18.5F, nullptr}, {"", 20, nullptr}, {"0", 20, "mayor"}};
    for (const auto& [answer, metres, says] : rows) {
        SCOPED_TRACE(answer);
        ModesDesk desk;
        desk.openReport("uno.rpt");
        desk.openReport("dos.rpt");
        desk.modes.mnuColorErrorMap();
        desk.forget();
        desk.dialogs.inputAnswers = {answer};
        desk.drawing.mnuEditTrocha();
        EXPECT_EQ(desk.dialogs.inputs, Lines{"192|Campora|"});
        for (const Gph* layer : desk.session.map().getGphList()) {
            EXPECT_EQ(dynamic_cast<const GphTrack&>(*layer).pointInfo(1).trocha(), metres);
        }
        EXPECT_EQ(desk.redraws(), metres == 20 ? 0U : 1U);
        EXPECT_EQ(desk.window.summary.back().value, metres == 200     ? "0.4 Has"
                                                    : metres == 18.5F ? "0.037 Has"
                                                                      : "0.04 Has");
        EXPECT_EQ(desk.dialogs.messages.size(), says == nullptr ? 0U : 1U);
        EXPECT_TRUE(says == nullptr || desk.dialogs.messages.at(0).find(says) != std::string::npos);
    }
}

TEST(DrawingCommands, AChosenColourIsKeptAndSeen) {
    const std::tuple<DrawingHandler, const char*, Color MapColors::*> rows[] = {
        {&DrawingCommands::mnuEditColorFum, "mapDrawcolor", &MapColors::draw},
        {&DrawingCommands::mnuEditColorNofum, "mapNoDrawcolor", &MapColors::noDraw},
        {&DrawingCommands::mnuEditColorBack, "mapBackcolor", &MapColors::back},
        {&DrawingCommands::mnuEditColorText, "mapForecolor", &MapColors::fore},
        {&DrawingCommands::mnuEditColorAlarms, "mapAlarmColor", &MapColors::alarm},
        {&DrawingCommands::mnuEditColorNoAlarms, "mapNoAlarmColor", &MapColors::noAlarm},
        {&DrawingCommands::mnuEditColorShapes, "mapShapeColor", &MapColors::shape},
        {&DrawingCommands::mnuEditColorLotes, "mapLoteColor", &MapColors::lot},
    };
    for (const auto& [handler, key, color] : rows) {
        SCOPED_TRACE(key);
        ModesDesk desk;
        desk.dialogs.colorAnswers = {std::nullopt, Color{0x0000AB}};
        (desk.drawing.*handler)();
        EXPECT_TRUE(desk.settings.values.empty()) << "cancelled";
        (desk.drawing.*handler)();
        MapColors expected;
        EXPECT_THAT(desk.dialogs.colors, Each(expected.*color));
        expected.*color = {0x0000AB};
        EXPECT_EQ(desk.session.map().style().colors, expected);
        EXPECT_EQ(desk.settings.values, (decltype(desk.settings.values){{key, "171"}}));
        EXPECT_EQ(desk.redraws(), 1U);

        desk.drawing.mnuEditColorDefect();
        MapStyle stored;
        readStyleSettings(desk.settings, stored);
        EXPECT_EQ(stored.colors, MapColors{});
        EXPECT_EQ(desk.session.map().style().colors, MapColors{});
    }
}

}  // namespace
}  // namespace campora
