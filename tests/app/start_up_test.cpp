// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/start_up.h"

#include <gtest/gtest.h>

#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

TEST(StartUp, SpeaksTheLanguageOfTheSettingOrTheSystem) {
    const std::tuple<const char*, const char*, int, Language, const char*> rows[] = {
        {"first start in Brazil", "", 0x0416, Language::Portuguese, "22"},
        {"first start in Germany", "", 0x0407, Language::English, "9"},
        {"chosen", "10", 0x0416, Language::Spanish, "10"},
        {"unknown code", "7", 0x0416, Language::English, "9"},
        {"nonsense", "portugués", 0x0416, Language::Portuguese, "22"},
    };
    for (const auto& [name, stored, system, language, written] : rows) {
        SCOPED_TRACE(name);
        SessionDesk desk;
        desk.locale.language = system;
        desk.settings.values["language"] = stored;
        loadMainWindow(desk.session, "/opt/campora/campora");
        EXPECT_EQ(desk.session.texts().language(), language);
        EXPECT_EQ(desk.settings.values["language"], written);
        EXPECT_GT(desk.window.retranslations, 0);
    }
}

TEST(StartUp, CommandLineOpensAndReplays) {
    const SessionDesk disk;
    const std::string report = disk.report("lote-3.rpt");
    const std::string missing = disk.folder.file("falta.rpt");
    // The files listed and the number of messages.
    const std::tuple<StartRequest, Names, std::size_t> rows[] = {
        {{}, {}, 0},
        {{{report}}, {"lote-3.rpt"}, 0},
        {{{report}, false, true, false}, {"lote-3.rpt"}, 0},
        {{{missing}, false, true, true}, {}, 1},
    };
    for (const auto& [request, listed, messages] : rows) {
        SCOPED_TRACE(testing::PrintToString(request.paths));
        SessionDesk desk;
        loadMainWindow(desk.session, "/opt/campora/campora");
        processCommandLine(desk.session, request);
        EXPECT_EQ(desk.listed(), listed);
        EXPECT_EQ(desk.dialogs.messages.size(), messages);
        EXPECT_EQ(desk.session.replay().speed(),
                  request.realtime ? Replay::kLongestPause : Replay::kUsualPause);
        EXPECT_EQ(desk.session.replay().repeat, request.repeat);
        EXPECT_TRUE(desk.clock.sleeps.empty()) << "no replay was asked for";
    }
}

}  // namespace
}  // namespace campora
