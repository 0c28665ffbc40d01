// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/zone_table.h"

#include <cstddef>
#include <utility>
#include <variant>

#include "base/dates.h"
#include "base/numbers.h"
#include "presc/read_figure.h"

namespace campora {

namespace {

/// A cell as the information box shows it.
struct CellText {
    const UserLocale& locale;

    std::string operator()(std::monostate /*empty*/) const { return {}; }
    std::string operator()(std::int64_t number) const { return numberText(number); }
    std::string operator()(float number) const {
        return numberText(static_cast<double>(number), locale.decimalSymbol());
    }
    std::string operator()(double number) const {
        return numberText(number, locale.decimalSymbol());
    }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const Date& date) const {
        return dateText(date, locale.shortDateForm());
    }
};

}  // namespace

std::optional<Failure> ZoneTable::open(std::string_view path) {
    if (std::optional<Failure> failure = reader_.open(path)) {
        return failure;
    }
    columnNames_.clear();
    SetList set;
    set.addDosis(0);
    for (int column = 1; column <= reader_.fieldCount(); ++column) {
        columnNames_.push_back(reader_.fieldName(column));
    }
    sets_.assign(columnNames_.size(), set);
    return std::nullopt;
}

void ZoneTable::readFigures(
    const std::function<void(std::int32_t record, GphPolygonMulti figure)>& take) {
    const std::int32_t records = reader_.recordCount();
    for (reader_.moveFirst(); reader_.record() <= records; reader_.moveNext()) {
        collectValues(reader_.partCount());
        take(reader_.record(), readFigure(reader_));
    }
}

void ZoneTable::collectValues(std::int32_t parts) {
    if (parts == 0) {
        return;
    }
    for (std::size_t i = 0; i < sets_.size(); ++i) {
        if (!sets_[i]) {
            continue;
        }
        const std::optional<double> value = reader_.fieldNumber(static_cast<int>(i) + 1);
        if (!value) {
            sets_[i].reset();
            continue;
        }
        for (std::int32_t part = 0; part < parts; ++part) {
            sets_[i]->addDosis(*value);
        }
    }
}

const SetList* ZoneTable::setOf(int column) const {
    if (column < 1 || column > columnCount()) {
        return nullptr;
    }
    const std::optional<SetList>& set = sets_[static_cast<std::size_t>(column) - 1];
    return set ? &*set : nullptr;
}

void ZoneTable::replaceSet(int column, SetList set) {
    sets_.at(static_cast<std::size_t>(column) - 1) = std::move(set);
}

ColumnSurvey ZoneTable::survey(int column, std::span<const GphPolygonMulti> figures) const {
    ColumnSurvey survey(reader_.isTextField(column));
    std::int32_t record = 0;
    for (const GphPolygonMulti& figure : figures) {
        ++record;
        if (figure.Gph_bound().isSet) {
            survey.add(record, reader_.fieldText(record, column),
                       reader_.fieldNumber(record, column).has_value());
        }
    }
    return survey;
}

std::vector<std::optional<double>>
ZoneTable::values(int column, ColumnForm form, std::span<const GphPolygonMulti> figures) const {
    std::vector<std::optional<double>> values;
    values.reserve(figures.size());
    std::int32_t record = 0;
    for (const GphPolygonMulti& figure : figures) {
        ++record;
        if (!figure.Gph_bound().isSet) {
            values.emplace_back();
            continue;
        }
        std::optional<double> value = reader_.fieldNumber(record, column);
        if (!value || form.decimal != DecimalSign::Point) {
            value = numberInForm(reader_.fieldText(record, column), form.decimal);
        }
        values.push_back(value);
    }
    return values;
}

std::string ZoneTable::shownCell(std::int32_t record, int column, const UserLocale& locale) const {
    reader_.moveTo(record);
    const CellValue value = reader_.fieldValue(column);
    return std::holds_alternative<std::monostate>(value) ? reader_.fieldText(record, column)
                                                         : std::visit(CellText{locale}, value);
}

}  // namespace campora
