// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "app/settings.h"

namespace campora {

class Session;

/// The folder that the setting keeps when it is still there, else the program's.
[[nodiscard]] std::string startFolder(const Session& session, SettingId setting);

/// Whether the user agrees that an existing file is replaced; true when there is none.
[[nodiscard]] bool overwriteAgreed(const Session& session, const std::string& target);

}  // namespace campora
