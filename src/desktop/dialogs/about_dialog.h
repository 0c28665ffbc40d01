// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include "base/texts.h"
#include "platform/clipboard.h"

namespace campora {

/// What the program is, whose it is and what it is made of.
class AboutDialog final : public QDialog {
public:
    /// The arguments outlive the dialog.
    AboutDialog(const Texts& texts, Clipboard& clipboard, QWidget* parent);
};

}  // namespace campora
