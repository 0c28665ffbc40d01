// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>

#include "app/command_line.h"
#include "platform/user_locale.h"

namespace campora {

class Session;

/// The language code (10 Spanish, 22 Portuguese, 9 English, others) of the user's system: its
/// language number as four hexadecimal digits, of which the last two count; 0 for longer numbers.
[[nodiscard]] std::int32_t systemLanguage(const UserLocale& locale);

/// What happens before the main window is shown: language, settings, file types, tables, the empty
/// map. `programPath`: the running program, with its folder.
void loadMainWindow(Session& session, std::string_view programPath);

/// Opens what the command line names.
void openStartFiles(Session& session, const StartRequest& request);
/// Sets the replay up as the command line asks and starts it; returns when it pauses or ends.
void applyReplaySwitches(Session& session, const StartRequest& request);
/// Both, one after the other.
void processCommandLine(Session& session, const StartRequest& request);

/// The last settings, and the end of a running replay.
void unloadMainWindow(Session& session);

}  // namespace campora
