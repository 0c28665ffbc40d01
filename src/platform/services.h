// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/classes_registry.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "platform/user_locale.h"

namespace campora {

/// What a window takes from the desktop that it stands on; all of it outlives the window.
struct Services {
    Dialogs& dialogs;
    SettingsStore& settings;
    const UserLocale& locale;
    Clipboard& clipboard;
    Clock& clock;
    ClassesRegistry& classes;
    Shell& shell;
};

}  // namespace campora
