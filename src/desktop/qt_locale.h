// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

#include "base/texts.h"
#include "platform/user_locale.h"

namespace campora {

/// What the desktop knows about the user's language, numbers and dates.
class QtLocale final : public UserLocale {
public:
    explicit QtLocale(const QLocale& locale = QLocale::system()) : locale_(locale) {}

    [[nodiscard]] char decimalSymbol() const override;
    /// "dd/mm/yyyy" where the user's short form writes the month in letters.
    [[nodiscard]] std::string shortDateForm() const override;
    /// The user's language, or English when the program does not speak it.
    [[nodiscard]] Language language() const;

private:
    QLocale locale_;
};

}  // namespace campora
