// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/start_up.h"

#include <charconv>

#include "app/open/file_types.h"
#include "app/session.h"
#include "app/settings.h"
#include "base/numbers.h"

namespace campora {

std::int32_t systemLanguage(const UserLocale& locale) {
    const std::string digits = hexText(static_cast<std::uint32_t>(locale.languageNumber()), 4);
    if (digits.size() != 4) {
        return 0;
    }
    return static_cast<std::int32_t>(leadingHex(std::string_view(digits).substr(2)));
}

void loadMainWindow(Session& session, std::string_view programPath) {
    const Services& services = session.services();
    session.setLanguage(languageOfCode(readNumber(services.settings, SettingId::Language),
                                       systemLanguage(services.locale)));
    writeText(services.settings, SettingId::RunPath, programPath);
    registerFileTypes(programPath, services.classes);
    session.start();
}

void openStartFiles(Session& session, const StartRequest& request) {
    if (!request.paths.empty()) {
        session.fileCommands().openPaths(request.paths, true);
    }
}

void applyReplaySwitches(Session& session, const StartRequest& request) {
    Replay& replay = session.replay();
    replay.repeat = request.repeat;
    if (request.realtime) {
        replay.setSpeed(Replay::kLongestPause);
    }
    if (request.anim) {
        replay.play();
    }
}

void processCommandLine(Session& session, const StartRequest& request) {
    openStartFiles(session, request);
    applyReplaySwitches(session, request);
}

void unloadMainWindow(Session& session) {
    // From the first start on there is an entry for it.
    SettingsStore& settings = session.services().settings;
    writeText(settings, SettingId::PrintDescription,
              readText(settings, SettingId::PrintDescription));
    session.replay().stopReplay();
}

}  // namespace campora
