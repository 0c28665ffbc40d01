// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/start_up.h"

#include <gtest/gtest.h>

#include "app/settings.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

TEST(StartUp, SpeaksTheLanguageOfTheSettingOrTheSystem) {
    struct Row {
        const char* name;
        const char* stored;
        int system;
        Language language;
        const char* written;
    };
    const Row rows[] = {
        {"first start in Brazil", nullptr, 0x0416, Language::Portuguese, "22"},
        {"first start in Argentina", nullptr, 0x2C0A, Language::Spanish, "10"},
        {"first start in Germany", nullptr, 0x0407, Language::English, "9"},
        {"a number of five digits", nullptr, 0x1040A, Language::English, "9"},
        {"chosen", "10", 0x0416, Language::Spanish, "10"},
        {"follows the system", "1", 0x0416, Language::Portuguese, "22"},
        {"unknown code", "7", 0x0416, Language::English, "9"},
        {"nonsense", "portugués", 0x0416, Language::Portuguese, "22"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        SessionDesk desk;
        desk.locale.language = row.system;
        if (row.stored != nullptr) {
            desk.settings.values["language"] = row.stored;
        }
        loadMainWindow(desk.session, "/opt/campora/campora");
        EXPECT_EQ(desk.session.texts().language(), row.language);
        EXPECT_EQ(desk.settings.values["language"], row.written);
        EXPECT_GT(desk.window.retranslations, 0);
    }
}

TEST(StartUp, ReadsSettingsRegistersAndShowsTheEmptyMap) {
    SessionDesk desk;
    desk.settings.values = {{"mapCoordType", "2"}, {"mapBackcolor", "255"}, {"DrawDotted", "True"}};
    loadMainWindow(desk.session, "/opt/campora/campora");
    EXPECT_EQ(desk.session.coordType(), CoordType::DegreesMinutes);
    EXPECT_EQ(desk.session.style().colors.back, Color{255});
    EXPECT_TRUE(desk.session.style().drawDotted);
    EXPECT_EQ(desk.canvas.backgroundColor(), Color{255});
    EXPECT_EQ(desk.settings.values["RunPath"], "/opt/campora/campora");
    EXPECT_EQ(desk.classes.values[".rpt"], "FurrowScope.RptFile");
    EXPECT_FALSE(desk.window.mapActive);
    EXPECT_TRUE(desk.window.title.starts_with("Campora "));
}

TEST(StartUp, NonsenseInEverySettingStopsNothing) {
    for (const char* nonsense : {"", "x", "99999999999", "-1", "1e9", "\xFF\xFE", "True False"}) {
        SCOPED_TRACE(nonsense);
        SessionDesk desk;
        for (const SettingRow& row : settingRows()) {
            desk.settings.values[std::string(row.key)] = nonsense;
        }
        loadMainWindow(desk.session, "/opt/campora/campora");
        EXPECT_EQ(desk.session.style().colors, MapColors{});
        EXPECT_EQ(desk.session.coordType(), CoordType::Degrees);
        EXPECT_TRUE(desk.session.style().drawBorders);
        EXPECT_TRUE(desk.session.loadFile(desk.report("lote.rpt"), true, true));
        desk.dialogs.openAnswers = {{}};
        desk.session.fileCommands().fileOpen();
        EXPECT_EQ(desk.dialogs.opens.back().folder, desk.session.programFolder());
    }
}

TEST(StartUp, CommandLineOpensAndReplays) {
    struct Row {
        const char* name;
        StartRequest request;
        Names listed;
        std::size_t messages;
        int speed;
        bool repeat;
    };
    SessionDesk disk;
    const std::string report = disk.report("lote-3.rpt");
    const std::string missing = disk.folder.file("falta.rpt");
    disk.folder.write("viejos/leeme.doc", "x");
    const std::string folder = disk.folder.file("viejos");
    const Row rows[] = {
        {"nothing", {}, {}, 0, Replay::kUsualPause, false},
        {"a report", {{report}}, {"lote-3.rpt"}, 0, Replay::kUsualPause, false},
        {"realtime alone",
         {{report}, false, true, false},
         {"lote-3.rpt"},
         0,
         Replay::kLongestPause,
         false},
        {"a missing file; switches still apply",
         {{missing}, false, true, true},
         {},
         1,
         Replay::kLongestPause,
         true},
        {"a folder without files", {{folder}}, {}, 1, Replay::kUsualPause, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        SessionDesk desk;
        loadMainWindow(desk.session, "/opt/campora/campora");
        processCommandLine(desk.session, row.request);
        EXPECT_EQ(desk.listed(), row.listed);
        EXPECT_EQ(desk.dialogs.messages.size(), row.messages);
        EXPECT_EQ(desk.session.replay().speed(), row.speed);
        EXPECT_EQ(desk.session.replay().repeat, row.repeat);
        EXPECT_TRUE(desk.clock.sleeps.empty()) << "no replay was asked for";
    }
}

TEST(StartUp, AnimPlaysAtOnceUntilTheWindowCloses) {
    SessionDesk desk;
    loadMainWindow(desk.session, "/opt/campora/campora");
    desk.clock.onEvents = [&](int times) {
        if (times == 200) {
            unloadMainWindow(desk.session);
        }
    };
    desk.session.printDescription = "Lote 4";
    processCommandLine(desk.session, {{desk.report("lote.rpt")}, true, false, true});
    EXPECT_GE(desk.clock.events, 200) << "repeated until then";
    EXPECT_EQ(desk.session.replay().state(), Replay::State::Idle);
    EXPECT_EQ(desk.settings.values["printDescription"], "Lote 4");
}

}  // namespace
}  // namespace campora
