// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "base/texts.h"
#include "model/number_column.h"
#include "platform/user_locale.h"

namespace campora {

/// What is known about the reading of columns before anybody is asked.
struct ColumnAnswers {
    bool blanksOutside = false;
    std::optional<DecimalSign> decimal = {};
};

/// How a column of doses is to be read, and what must be asked about it.
class ColumnQuestion {
public:
    /// `column`: its name. `survey` outlives this.
    ColumnQuestion(std::string column, const ColumnSurvey& survey, const ColumnAnswers& answers);

    /// Whether no way of reading the column is left.
    [[nodiscard]] bool isHopeless() const { return survey_.bad().has_value(); }
    /// Which cell is to blame.
    [[nodiscard]] std::string fault(const Texts& texts) const;

    /// Whether somebody must be asked before `form` holds.
    [[nodiscard]] bool isOpen() const { return asksBlanks_ || asksSign_; }
    /// Whether "yes" and "no" are two ways of reading the column, "no" being `formOfNo`.
    [[nodiscard]] bool hasTwoWays() const { return asksSign_ && survey_.ambiguous() != nullptr; }
    /// One question about all that is open.
    [[nodiscard]] std::string words(const Texts& texts, const UserLocale& locale) const;
    /// The options of the batch program that answer it.
    [[nodiscard]] std::string options() const;

    /// As the column is read when nothing is open, or when the answer is "yes".
    [[nodiscard]] ColumnForm form() const { return form_; }
    [[nodiscard]] ColumnForm formOfNo() const;

private:
    std::string column_;
    const ColumnSurvey& survey_;
    ColumnForm form_;
    bool asksBlanks_ = false;
    bool asksSign_ = false;
};

}  // namespace campora
