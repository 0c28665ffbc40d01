// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/number_column.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "base/numbers.h"

namespace campora {

namespace {

constexpr std::size_t kGroup = 3;

/// Whether the digits before the decimals stand in groups of three with `separator` between them,
/// the first group as short as need be and without a zero in front.
bool isGrouped(std::string_view digits, char separator) {
    const std::size_t first = digits.find(separator);
    if (first == 0 || first > kGroup || digits[0] == '0') {
        return false;
    }
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const bool isSeparator = i >= first && (i - first) % (kGroup + 1) == 0;
        if (isSeparator ? digits[i] != separator : !isDigit(digits[i])) {
            return false;
        }
    }
    return (digits.size() - first) % (kGroup + 1) == 0;
}

}  // namespace

std::optional<double> numberInForm(std::string_view cell, DecimalSign decimal) {
    const char sign = decimal == DecimalSign::Point ? '.' : ',';
    const char separator = decimal == DecimalSign::Point ? ',' : '.';
    if (cell.size() > 1 && cell[0] == '+' && cell[1] != '-') {
        cell.remove_prefix(1);
    }
    std::string text(cell);
    const std::size_t whole = text.starts_with('-') ? 1 : 0;
    const std::size_t end = std::min(text.find(sign), text.size());
    if (text.find(separator) != std::string::npos) {
        if (text.find(separator, end) != std::string::npos ||
            !isGrouped(std::string_view(text).substr(whole, end - whole), separator)) {
            return std::nullopt;
        }
    }
    if (end < text.size()) {
        text[end] = '.';
        if (sign == ',' && text.find(',') != std::string::npos) {
            return std::nullopt;
        }
    }
    if (sign == '.') {
        std::erase(text, ',');
    } else if (text.find('.') < end) {
        text.erase(std::remove(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '.'),
                   text.begin() + static_cast<std::ptrdiff_t>(end));
    }
    double value = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isNumber = error == std::errc() && stop == text.data() + text.size();
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

void ColumnSurvey::add(std::int32_t record, std::string_view cell, bool plain) {
    const bool starsOnly = cell.find_first_not_of('*') == std::string_view::npos;
    if (starsOnly && !plain) {  // blank, or the stars by which some programs say so
        firstBlank_ = blanks_ == 0 ? record : firstBlank_;
        ++blanks_;
        return;
    }
    ++values_;
    const std::optional<double> asPoint = numberInForm(cell, DecimalSign::Point);
    const bool pointIsDecimal = !isText_ && plain && cell.find('.') != std::string_view::npos;
    const std::optional<double> asComma =
        pointIsDecimal ? std::nullopt : numberInForm(cell, DecimalSign::Comma);
    pointFits_ = pointFits_ && (asPoint || plain);
    commaFits_ = commaFits_ && asComma;
    const auto keepFirst = [&](std::optional<Cell>& first, bool is) {
        if (is && !first) {
            first = Cell{record, std::string(cell)};
        }
    };
    keepFirst(bad_, !pointFits_ && !commaFits_);
    keepFirst(unusual_, !plain);
    keepFirst(different_, asPoint && asComma && *asPoint != *asComma);
}

std::optional<ColumnSurvey::Cell> ColumnSurvey::bad() const {
    if (values_ == 0) {
        return Cell{firstBlank_, ""};
    }
    return bad_;
}

}  // namespace campora
