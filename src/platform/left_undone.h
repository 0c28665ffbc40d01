// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>

#include "base/numbers.h"
#include "base/plain_text.h"
#include "platform/desk.h"

namespace campora {

/// Says in one box what the user's cancelling has left undone: the first twenty of `paths`, then
/// how many more. `what`: the text above them. Nothing is said of no paths.
inline void tellLeftUndone(TextId what, std::span<const std::string> paths, const Desk& desk) {
    constexpr std::size_t kMostNamed = 20;
    if (paths.empty()) {
        return;
    }
    std::string text(desk.texts(what));
    for (const std::string& path : paths.first(std::min(paths.size(), kMostNamed))) {
        text.append("\n").append(plainLine(path));
    }
    if (paths.size() > kMostNamed) {
        text.append("\n").append(
            desk.texts.format(TextId::MoreRows, {numberText(paths.size() - kMostNamed)}));
    }
    desk.tell(text, MessageIcon::Information);
}

}  // namespace campora
