// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "base/texts.h"
#include "model/map_style.h"
#include "platform/settings_store.h"

namespace campora {

/// Colours and drawing switches as the user left them. What is missing or damaged in the store gets
/// its default.
void readStyleSettings(const SettingsStore& settings, MapStyle& style);

/// The language that the user chose; none when there is no choice or it is not one of the three.
[[nodiscard]] std::optional<Language> readLanguageSetting(const SettingsStore& settings);

}  // namespace campora
