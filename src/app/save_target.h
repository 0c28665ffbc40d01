// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "app/settings.h"
#include "platform/desk.h"

namespace campora {

/// The folder that the setting keeps when it is still there, else `otherwise`.
[[nodiscard]] std::string keptFolder(const SettingsStore& settings, SettingId setting,
                                     const std::string& otherwise);

/// Whether the user agrees that an existing file is replaced; true when there is none.
[[nodiscard]] bool overwriteAgreed(const Desk& desk, const std::string& target);

}  // namespace campora
