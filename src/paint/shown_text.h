// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include <QString>

#include "base/plain_text.h"

namespace campora {

/// A text that is only shown, without what would steer the screen.
[[nodiscard]] inline QString shownText(std::string_view utf8) {
    return QString::fromStdString(plainText(utf8));
}

}  // namespace campora
