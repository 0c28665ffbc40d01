// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

#include "platform/user_locale.h"

namespace campora {

/// What the desktop knows about the user's language, numbers and dates.
class QtLocale final : public UserLocale {
public:
    explicit QtLocale(const QLocale& locale = QLocale::system()) : locale_(locale) {}

    [[nodiscard]] char decimalSymbol() const override;
    /// "dd/mm/yyyy" where the user's short form writes the month in letters.
    [[nodiscard]] std::string shortDateForm() const override;
    [[nodiscard]] int languageNumber() const override;

private:
    QLocale locale_;
};

}  // namespace campora
