// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

#include "base/texts.h"

namespace campora {

/// Words that the toolkit's own boxes show (buttons, the open dialog, names of keys), from the
/// program's text table, so that they speak its language whatever is installed.
class WidgetTexts final : public QTranslator {
public:
    /// `texts` outlives this.
    explicit WidgetTexts(const Texts& texts) : texts_(texts) {}

    [[nodiscard]] QString translate(const char* context, const char* source,
                                    const char* disambiguation, int n) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    const Texts& texts_;
};

}  // namespace campora
