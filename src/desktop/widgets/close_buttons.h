// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QDialogButtonBox>

#include "base/texts.h"

class QDialog;

namespace campora {

/// The last row of a dialog that is only read: it closes on Enter.
class CloseButtons final : public QDialogButtonBox {
    Q_OBJECT

public:
    CloseButtons(const Texts& texts, QDialog* parent);

    /// A button that copies what the dialog says; `name`: of the object.
    void addCopying(const char* name, const QString& caption, std::function<void()> copy);
};

}  // namespace campora
