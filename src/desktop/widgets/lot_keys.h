// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include <QKeyCombination>

#include "app/lots/lot_editor.h"
#include "base/text_id.h"

namespace campora {

/// A key that changes the lot that is drawn, while the map or the panel of the lot has the focus.
struct LotKey {
    QKeyCombination keys;
    TextId does{};
    void (LotEditor::*run)() = nullptr;
};

[[nodiscard]] std::span<const LotKey> lotKeys();

}  // namespace campora
