// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace campora {

enum class DecimalSign { Point, Comma };

/// How a column is read.
struct ColumnForm {
    /// The other sign may separate thousands.
    DecimalSign decimal = DecimalSign::Point;
    /// A zone whose cell is blank is ground outside every zone; otherwise no blank is taken.
    bool blanksOutside = false;

    bool operator==(const ColumnForm&) const = default;
};

/// The number that the cell holds, with groups of three digits separated or not ("1.200,5" and
/// "1200,5" with the comma as decimal sign); none for anything else.
[[nodiscard]] std::optional<double> numberInForm(std::string_view cell, DecimalSign decimal);

/// What people wrote into a column of numbers: whether it can be read at all, and in how many ways.
class ColumnSurvey {
public:
    struct Cell {
        std::int32_t record = 0;  ///< from 1
        std::string text;
    };

    /// `isText`: of a column of texts, where a point may stand between thousands.
    explicit ColumnSurvey(bool isText = true) : isText_(isText) {}

    /// A cell without blanks around it. `plain`: whether it is a number as it stands. `record`:
    /// from 1, ascending.
    void add(std::int32_t record, std::string_view cell, bool plain);

    [[nodiscard]] std::int32_t blanks() const { return blanks_; }
    [[nodiscard]] std::int32_t firstBlank() const { return firstBlank_; }
    [[nodiscard]] bool fits(DecimalSign sign) const {
        return values_ > 0 && (sign == DecimalSign::Point ? pointFits_ : commaFits_);
    }
    /// The first cell that leaves no way of reading the column; a blank one when all are.
    [[nodiscard]] std::optional<Cell> bad() const;
    /// The first cell that is no number as it stands; none when all but the blanks are.
    [[nodiscard]] const std::optional<Cell>& unusual() const { return unusual_; }
    /// The first cell that is one number with a decimal point and another with a comma; none when
    /// the column can be read in one way only.
    [[nodiscard]] const Cell* ambiguous() const {
        return pointFits_ && commaFits_ && different_ ? &*different_ : nullptr;
    }

private:
    bool isText_;
    std::int32_t blanks_ = 0;
    std::int32_t firstBlank_ = 0;
    std::int32_t values_ = 0;
    bool pointFits_ = true;
    bool commaFits_ = true;
    std::optional<Cell> bad_;
    std::optional<Cell> unusual_;
    std::optional<Cell> different_;
};

}  // namespace campora
