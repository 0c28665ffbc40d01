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
};

}  // namespace campora
