// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/user_locale.h"

namespace campora {

/// Stands for a figure that cannot be told.
inline constexpr std::string_view kNoFigure = "–";

/// Writes the figures of tables and pages, which have as many decimals however large they are.
class FigureText {
public:
    explicit FigureText(const UserLocale& locale) : symbol_(locale.decimalSymbol()) {}

    [[nodiscard]] std::string number(std::optional<double> value, int decimals) const;
    /// "12.34 ha".
    [[nodiscard]] std::string hectares(std::optional<double> value) const;
    /// "12.34 ha (5.6 %)", with its part of `whole`, when that is more than nothing.
    [[nodiscard]] std::string hectaresOf(std::optional<double> value, double whole) const;
    /// "5.6" for a share of 0.056.
    [[nodiscard]] std::string percent(std::optional<double> share) const;

private:
    char symbol_;
};

}  // namespace campora
