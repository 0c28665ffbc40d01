// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "base/texts.h"

namespace campora {

// Summaries are data and stay in the Spanish of the consoles; people read them in their language.

/// The name of a summary entry ("Hectáreas:") in the user's language; one that no console writes
/// stays as it is.
[[nodiscard]] std::string shownSummaryName(std::string_view name, const Texts& texts);

/// The same for a unit ("lt/hect").
[[nodiscard]] std::string shownUnit(std::string_view unit, const Texts& texts);

}  // namespace campora
