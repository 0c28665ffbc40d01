// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include "base/texts.h"

class QTreeWidget;

namespace campora {

/// All keys of the commands, menu by menu, and the gestures of the mouse.
class KeysDialog final : public QDialog {
public:
    KeysDialog(const Texts& texts, QWidget* parent);
};

}  // namespace campora
