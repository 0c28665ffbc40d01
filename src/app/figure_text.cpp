// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/figure_text.h"

#include "base/number_forms.h"
#include "base/numbers.h"
#include "base/text.h"

namespace campora {

std::string FigureText::number(std::optional<double> value, int decimals) const {
    if (!value) {
        return std::string(kNoFigure);
    }
    return decimals == 0
               ? numberText(roundHalfEven(*value))
               : replaceAll(fixedNumberText(*value, decimals), ".", std::string(1, symbol_));
}

std::string FigureText::hectares(std::optional<double> value) const {
    return value ? number(value, 2) + " ha" : std::string(kNoFigure);
}

std::string FigureText::hectaresOf(std::optional<double> value, double whole) const {
    return value && whole > 0 ? hectares(value) + " (" + percent(*value / whole) + " %)"
                              : hectares(value);
}

std::string FigureText::percent(std::optional<double> share) const {
    constexpr double kPerCent = 100;
    return share ? number(*share * kPerCent, 1) : std::string(kNoFigure);
}

}  // namespace campora
