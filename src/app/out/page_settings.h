// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/page_setup.h"
#include "platform/settings_store.h"

namespace campora {

/// As the user left it; A4 in landscape at first.
[[nodiscard]] PageSetup readPageSetup(const SettingsStore& settings);
void writePageSetup(SettingsStore& settings, const PageSetup& setup);

}  // namespace campora
