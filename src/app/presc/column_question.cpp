// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/column_question.h"

#include <utility>

#include "base/numbers.h"

namespace campora {

namespace {

DecimalSign otherThan(DecimalSign sign) {
    return sign == DecimalSign::Point ? DecimalSign::Comma : DecimalSign::Point;
}

/// The sign by which the digits of the cell are thousands: the one that is not in it.
DecimalSign signOfThousands(const ColumnSurvey::Cell& cell) {
    return cell.text.find('.') != std::string::npos ? DecimalSign::Comma : DecimalSign::Point;
}

std::string shown(const ColumnSurvey::Cell& cell, DecimalSign sign, const UserLocale& locale) {
    return numberText(numberInForm(cell.text, sign).value_or(0), locale.decimalSymbol());
}

}  // namespace

ColumnQuestion::ColumnQuestion(std::string column, const ColumnSurvey& survey,
                               const ColumnAnswers& answers)
    : column_(std::move(column)), survey_(survey) {
    form_.blanksOutside = survey.blanks() > 0;
    asksBlanks_ = form_.blanksOutside && !answers.blanksOutside;
    form_.decimal = survey.fits(DecimalSign::Point) ? DecimalSign::Point : DecimalSign::Comma;
    asksSign_ = survey.unusual().has_value() || survey.ambiguous() != nullptr;
    if (const ColumnSurvey::Cell* const cell = survey.ambiguous()) {
        form_.decimal = signOfThousands(*cell);
    }
    if (asksSign_ && answers.decimal && survey.fits(*answers.decimal)) {
        form_.decimal = *answers.decimal;
        asksSign_ = false;
    }
}

std::string ColumnQuestion::fault(const Texts& texts) const {
    const ColumnSurvey::Cell cell = survey_.bad().value_or(ColumnSurvey::Cell());
    return texts.format(TextId::ColumnBadValue, {numberText(cell.record), cell.text});
}

ColumnForm ColumnQuestion::formOfNo() const {
    return {otherThan(form_.decimal), form_.blanksOutside};
}

std::string ColumnQuestion::words(const Texts& texts, const UserLocale& locale) const {
    std::string words;
    if (asksBlanks_) {
        words = texts.format(TextId::ColumnHasBlanks, {column_, numberText(survey_.blanks()),
                                                       numberText(survey_.firstBlank())}) +
                "\n";
    }
    if (hasTwoWays()) {
        const ColumnSurvey::Cell& cell = *survey_.ambiguous();
        const std::string yes = shown(cell, form_.decimal, locale);
        const std::string no = shown(cell, otherThan(form_.decimal), locale);
        words += texts.format(TextId::ColumnIsAmbiguous,
                              {column_, numberText(cell.record), cell.text, yes, no});
        return words + "\n" + texts.format(TextId::AskThousands, {yes, no});
    }
    if (asksSign_) {
        const ColumnSurvey::Cell& cell = *survey_.unusual();
        words += texts.format(TextId::ColumnHasCommas, {column_, numberText(cell.record), cell.text,
                                                        shown(cell, form_.decimal, locale)}) +
                 "\n";
    }
    return words.append(texts(TextId::AskUseColumn));
}

std::string ColumnQuestion::options() const {
    std::string options = asksBlanks_ ? "--blanks empty" : "";
    if (asksSign_) {
        options += options.empty() ? "" : " ";
        options += hasTwoWays()                          ? "--decimal-column comma|point"
                   : form_.decimal == DecimalSign::Comma ? "--decimal-column comma"
                                                         : "--decimal-column point";
    }
    return options;
}

}  // namespace campora
