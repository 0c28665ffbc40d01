// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace campora {

/// What the user's system says about numbers and dates.
class UserLocale {
public:
    virtual ~UserLocale() = default;

    /// "." or ",".
    [[nodiscard]] virtual char decimalSymbol() const = 0;
    /// The short date form, as `dateText` takes it ("dd/mm/yyyy").
    [[nodiscard]] virtual std::string shortDateForm() const = 0;
    /// Number of the user's language and country; its low byte is the language (0x0A Spanish,
    /// 0x16 Portuguese, 0x09 English). 0 when it is not known.
    [[nodiscard]] virtual int languageNumber() const = 0;
};

}  // namespace campora
