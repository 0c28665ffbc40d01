// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/finding_table.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string_view>
#include <utility>

#include "app/clock_text.h"
#include "app/figure_text.h"
#include "base/numbers.h"
#include "base/plain_text.h"
#include "base/text.h"
#include "work/vex_alarmas.h"

namespace campora {

namespace {

constexpr double kPerCent = 100;

constexpr FindingColumn kPassColumns[] = {
    {TextId::FindingFile, FigureForm::File},
    {TextId::FindingPass, FigureForm::Number},
    {TextId::FindingStart, FigureForm::Start},
    {TextId::FindingDuration, FigureForm::Duration},
    {TextId::FindingLength, FigureForm::Number},
    {TextId::FindingDosedHectares, FigureForm::Number, 2},
    {TextId::FindingDose, FigureForm::Number, 1},
    {TextId::FindingDoseSpread, FigureForm::Number, 1},
    {TextId::FindingSpeed, FigureForm::Number, 1},
    {TextId::FindingHeading, FigureForm::Number},
    {TextId::FindingLargestError, FigureForm::Number, 1, kPerCent},
};

constexpr FindingColumn kProblemColumns[] = {
    {TextId::FindingFile, FigureForm::File},      {TextId::FindingProblem, FigureForm::Problem},
    {TextId::FindingStart, FigureForm::Start},    {TextId::FindingDuration, FigureForm::Duration},
    {TextId::FindingLength, FigureForm::Number},  {TextId::FindingHectares, FigureForm::Number, 3},
    {TextId::FindingDose, FigureForm::Number, 1}, {TextId::FindingSpecified, FigureForm::Number, 1},
    {TextId::FindingLost, FigureForm::Number, 3}, {TextId::FindingPosition, FigureForm::Position},
};

TextId problemName(ProblemKind kind) {
    switch (kind) {
    case ProblemKind::NoDose:
        return TextId::ProblemNoDose;
    case ProblemKind::OffDose:
        return TextId::ProblemOffDose;
    case ProblemKind::Alarm:
        return TextId::ProblemAlarm;
    case ProblemKind::Gap:
        return TextId::ProblemGap;
    case ProblemKind::Speed:
        return TextId::ProblemSpeed;
    case ProblemKind::Swath:
        break;
    }
    return TextId::ProblemSwath;
}

std::optional<std::int64_t> secondOf(const RecordTime& time) {
    return time.clock == RecordClock::None ? std::nullopt : std::optional(time.second);
}

std::optional<double> orderOf(const RecordTime& time) {
    const std::optional<std::int64_t> second = secondOf(time);
    return second ? std::optional(static_cast<double>(*second)) : std::nullopt;
}

}  // namespace

std::string problemText(const Texts& texts, const Problem& problem, WorkKind machine) {
    if (problem.kind != ProblemKind::Alarm) {
        const TextId kind = isStop(problem) ? TextId::ProblemPause : problemName(problem.kind);
        std::string name(texts(kind));
        return problem.channel < 0
                   ? name
                   : texts.format(TextId::CompareChannel, {numberText(problem.channel + 1), name});
    }
    std::string name(alarmText(texts, machine, problem.alarm));
    // Some have the word in their name, as "speed alarm", and need none before it.
    const std::string_view form = texts(TextId::ProblemAlarm);
    const std::string word = lowerCase(form.substr(0, form.find(':')));
    return lowerCase(name).find(word) != std::string::npos
               ? name
               : texts.format(TextId::ProblemAlarm, {std::move(name)});
}

void FindingTable::addFile(std::string name, std::span<const Pass> passes) {
    const std::size_t file = files_.size();
    files_.push_back(std::move(name));
    double number = 0;
    for (const Pass& pass : passes) {
        addRow({{file, pass.firstRecord, pass.lastRecord, pass.lastRecord},
                {static_cast<double>(file), ++number, orderOf(pass.start), pass.seconds,
                 pass.metres, pass.hectares, pass.dose, pass.doseDeviation, pass.speedKmh,
                 pass.headingDegrees, pass.largestError},
                pass.start,
                {},
                std::nullopt});
    }
}

void FindingTable::addFile(std::string name, const Problems& problems, WorkKind machine) {
    constexpr int kBits = 32;
    const std::size_t file = files_.size();
    files_.push_back(std::move(name));
    turns_ += problems.turns;
    for (const Problem& problem : problems.rows) {
        const double kind = static_cast<int>(problem.kind) * kBits + problem.alarm;
        const bool isGap = problem.kind == ProblemKind::Gap;
        const std::size_t end = problem.lastRecord + (isGap ? 0 : 1);
        addRow({{file, problem.firstRecord, problem.lastRecord, end},
                {static_cast<double>(file), kind, orderOf(problem.start), problem.seconds,
                 problem.metres, problem.hectares, problem.dose, problem.specified, problem.lost,
                 problem.position.y},
                problem.start,
                problem.position,
                problem,
                machine});
    }
}

void FindingTable::addRow(const Row& row) {
    order_.push_back(rows_.size());
    rows_.push_back(row);
}

std::span<const FindingColumn> FindingTable::columns() const {
    return kind_ == Kind::Passes ? std::span<const FindingColumn>(kPassColumns) : kProblemColumns;
}

std::string FindingTable::heading(std::size_t column) const {
    return std::string(desk_.texts(columns()[column].heading));
}

bool FindingTable::isFigure(std::size_t column) const {
    const FigureForm form = columns()[column].form;
    return form == FigureForm::Number || form == FigureForm::Duration;
}

std::string FindingTable::figureText(const Row& row, std::size_t column) const {
    const std::optional<double>& figure = row.figures[column];
    const FindingColumn& form = columns()[column];
    if (figure && form.form == FigureForm::Duration) {
        return durationText(static_cast<std::int64_t>(roundHalfEven(*figure)));
    }
    return FigureText(desk_.locale)
        .number(figure ? std::optional(*figure * form.factor) : std::nullopt, form.decimals);
}

std::string FindingTable::cell(std::size_t row, std::size_t column) const {
    constexpr int kPlaces = 6;
    const Row& shown = at(row);
    const FigureText figure(desk_.locale);
    switch (columns()[column].form) {
    case FigureForm::File:
        return plainLine(files_[shown.stretch.file]);
    case FigureForm::Problem:
        return shown.problem ? problemText(desk_.texts, *shown.problem, shown.machine) : "";
    case FigureForm::Start:
        return momentText(secondOf(shown.start), shown.start.clock == RecordClock::DateAndTime,
                          desk_.locale);
    case FigureForm::Position:
        return figure.number(shown.position.y, kPlaces) + "; " +
               figure.number(shown.position.x, kPlaces);
    case FigureForm::Duration:
    case FigureForm::Number:
        break;
    }
    return figureText(shown, column);
}

void FindingTable::sortBy(std::size_t column, bool descending) {
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    std::stable_sort(order_.begin(), order_.end(), [&](std::size_t a, std::size_t b) {
        const std::optional<double>& first = rows_[a].figures[column];
        const std::optional<double>& second = rows_[b].figures[column];
        if (!first || !second) {
            return first.has_value() && !second.has_value();
        }
        return descending ? *first > *second : *first < *second;
    });
}

std::optional<std::size_t> FindingTable::rowOf(std::size_t file, std::size_t record) const {
    std::optional<std::size_t> found;
    const auto length = [this](std::size_t row) {
        return stretch(row).lastRecord - stretch(row).firstRecord;
    };
    for (std::size_t row = 0; row < rowCount(); ++row) {
        const FoundStretch& known = stretch(row);
        if (known.file == file && known.firstRecord <= record && record <= known.lastRecord &&
            (!found || length(row) < length(*found))) {
            found = row;
        }
    }
    return found;
}

std::optional<std::size_t> FindingTable::neighbour(std::optional<std::size_t> row,
                                                   bool forward) const {
    if (rows_.empty()) {
        return std::nullopt;
    }
    const std::size_t count = rows_.size();
    std::size_t place = forward ? 0 : count - 1;
    if (row) {
        place = (order_[*row] + (forward ? 1 : count - 1)) % count;
    }
    return rowAt(place);
}

std::size_t FindingTable::rowAt(std::size_t place) const {
    return static_cast<std::size_t>(std::find(order_.begin(), order_.end(), place) -
                                    order_.begin());
}

std::string FindingTable::asText() const {
    std::string text;
    const std::size_t count = columns().size();
    for (std::size_t column = 0; column < count; ++column) {
        text.append(heading(column)).append(column + 1 < count ? "\t" : "\n");
    }
    for (std::size_t row = 0; row < rowCount(); ++row) {
        for (std::size_t column = 0; column < count; ++column) {
            text.append(cell(row, column)).append(column + 1 < count ? "\t" : "\n");
        }
    }
    return text;
}

}  // namespace campora
