// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "base/numbers.h"
#include "model/geodesy.h"
#include "platform/user_locale.h"

namespace campora {

/// A figure as summaries and point information show it: rounded with `roundSignificant`, with the
/// user's decimal symbol.
[[nodiscard]] inline std::string shownNumber(double value, const UserLocale& locale) {
    return numberText(roundSignificant(value), locale.decimalSymbol());
}

}  // namespace campora
