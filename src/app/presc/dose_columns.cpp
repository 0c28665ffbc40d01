// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/dose_columns.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "app/settings.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/plain_text.h"
#include "platform/file_filter.h"
#include "presc/zone_overlaps.h"

namespace campora {

namespace {

/// Of the pairs of zones on top of each other.
constexpr std::size_t kMostNamed = 4;
/// What 16 bits hold.
constexpr double kGreatestDose = 32767;

/// 0 is one of them, whether a zone has it or not.
std::size_t distinctDoses(const GphPresc& presc, int column, ColumnForm form) {
    SetList doses;
    doses.addDosis(0);
    for (const std::optional<double>& value : presc.values(column, form)) {
        if (value) {
            doses.addDosis(*value);
        }
    }
    return doses.getSet().size();
}

}  // namespace

void DoseColumns::addChannel() {
    if (canAdd()) {
        rows_.emplace_back();
    }
}

void DoseColumns::removeChannel() {
    if (canRemove()) {
        rows_.pop_back();
    }
}

void DoseColumns::chooseFile(int row, SettingsStore& settings, const std::string& folder) {
    if (busy_) {
        return;
    }
    const Texts& texts = desk_.texts;
    OpenRequest request{std::string(texts(TextId::Open)),
                        readText(settings, SettingId::PrescOpenPath),
                        {fileFilter(texts, TextId::FilterShapes, kShapeEnding)}};
    if (request.folder.empty()) {
        request.folder = folder;
    }
    const std::vector<std::string> paths = desk_.dialogs.openFiles(request);
    if (paths.empty()) {
        return;
    }
    writeText(settings, SettingId::PrescOpenPath, folderOf(paths.front()));
    readMap(row, paths.front());
}

void DoseColumns::readMap(int row, const std::string& path) {
    Row& chosen = rows_.at(static_cast<std::size_t>(row));
    chosen = Row();
    chosen.path = path;
    load(chosen, row);
    warnOfDistance();
}

void DoseColumns::load(Row& row, int index) {
    auto presc = std::make_unique<GphPresc>();
    follow(*presc, index);
    busy_ = true;
    if (presc->loadFromFile(row.path, desk_)) {
        row.presc = std::move(presc);
    }
    busy_ = false;
    if (!row.presc) {
        return;
    }
    if (const std::string fault = faultOf(*row.presc, row.path); !fault.empty()) {
        desk_.tell(fault);
        row.presc.reset();
        return;
    }
    noteOddities(*row.presc);
}

std::string DoseColumns::faultOf(const GphPresc& presc, const std::string& path) const {
    const Texts& texts = desk_.texts;
    if (presc.figures() != FigureKind::Zone) {
        const TextId what =
            presc.figures() == FigureKind::Lines ? TextId::FiguresLines : TextId::FiguresPoints;
        return texts.format(TextId::MapsWithoutPolygons, {path, std::string(texts(what))});
    }
    if (!presc.Gph_bound().isSet) {
        return texts.format(TextId::MapsWithoutPolygons,
                            {path, std::string(texts(TextId::FiguresNone))});
    }
    if (presc.notes().isTableMissing) {
        const std::string table =
            path.substr(0, path.size() - pathEnding(path).size()).append(kTableEnding);
        return texts.format(TextId::MapWithoutTable, {path, std::string(fileNamePart(table))});
    }
    return {};
}

void DoseColumns::noteOddities(const GphPresc& presc) {
    const Texts& texts = desk_.texts;
    const auto& [projection, datum] = presc.notes().system;
    if (!projection.empty()) {
        note(texts.format(TextId::MapOtherProjection, {presc.name(), projection}));
    } else if (!isWorldDatum(datum)) {
        note(texts.format(TextId::MapOtherDatum, {presc.name(), datum}));
    }
    std::string list;
    const auto pairs = overlappingZones(presc, kMostNamed + 1);
    for (std::size_t i = 0; i < std::min(pairs.size(), kMostNamed); ++i) {
        list += list.empty() ? "" : ", ";
        list += texts.format(TextId::PairOfRecords,
                             {numberText(pairs[i].first), numberText(pairs[i].second)});
    }
    if (!list.empty()) {
        list = pairs.size() > kMostNamed ? texts.format(TextId::AndOthers, {list}) : list;
        note(texts.format(TextId::ZonesOverlap, {presc.name(), list}));
    }
}

void DoseColumns::follow(GphPresc& presc, int row) {
    presc.progress = [this, row, last = -1](int percent) mutable {
        if (std::exchange(last, percent) == percent) {
            return;
        }
        if (onProgress) {
            onProgress(row, percent);
        }
    };
}

void DoseColumns::warnOfDistance() const {
    std::int32_t furthest = 0;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const GphPresc* const one = rows_[i].presc.get();
            const GphPresc* const other = rows_[j].presc.get();
            if (one != nullptr && other != nullptr && one->Gph_bound().isSet &&
                other->Gph_bound().isSet) {
                furthest = std::max(furthest, one->Gph_bound().distanceTo(other->Gph_bound()));
            }
        }
    }
    if (furthest > kFarApart) {
        desk_.tell(std::string(desk_.texts(TextId::DosesFarApart)));
    }
}

bool DoseColumns::isWhole(int row) const {
    const Row& shown = at(row);
    return shown.presc && !shown.presc->notes().damage;
}

std::vector<std::string> DoseColumns::columns(int row) const {
    const Row& shown = at(row);
    return shown.presc ? shown.presc->columnNames() : std::vector<std::string>();
}

void DoseColumns::chooseColumn(int row, int column) {
    Row& chosen = rows_.at(static_cast<std::size_t>(row));
    if (chosen.presc && column >= 1 && column <= chosen.presc->columnCount()) {
        chosen.column = column;
        chosen.survey = chosen.presc->survey(column);
        chosen.form.reset();
    }
}

std::string DoseColumns::caption(int row) const {
    return desk_.texts.format(TextId::ReportPointChannel, {numberText(row + 1)}) + ":";
}

std::string DoseColumns::doseLabel(int row) const {
    const Row& shown = at(row);
    const Texts& texts = desk_.texts;
    if (!shown.presc) {
        return std::string(texts(TextId::DosesNoFile));
    }
    if (shown.column == GphPresc::kNoColumn) {
        return {};
    }
    const ColumnQuestion question({}, shown.survey, {});
    if (question.isHopeless()) {
        return std::string(texts(TextId::DosesNotNumeric));
    }
    const std::string doses =
        numberText(distinctDoses(*shown.presc, shown.column, shown.form.value_or(question.form())));
    return shown.survey.blanks() == 0
               ? texts.format(TextId::DosesCount, {doses})
               : texts.format(TextId::DosesCountBlanks, {doses, numberText(shown.survey.blanks())});
}

bool DoseColumns::isComplete(int row) {
    Row& checked = rows_.at(static_cast<std::size_t>(row));
    const Texts& texts = desk_.texts;
    const auto say = [&texts, row](TextId id) { return texts.format(id, {numberText(row + 1)}); };
    if (!checked.presc) {
        desk_.tell(say(TextId::DosesNeedFile));
        return false;
    }
    if (checked.column == GphPresc::kNoColumn) {
        desk_.tell(say(TextId::DosesNeedColumn));
        return false;
    }
    if (!settleForm(checked, say(TextId::DosesBadColumn)) || !areDosesFit(row)) {
        return false;
    }
    return distinctDoses(*checked.presc, checked.column, *checked.form) <= kMostDoses ||
           desk_.askOrCancel(namingFile(say(TextId::DosesTooMany), checked.path)) == Answer::Yes;
}

bool DoseColumns::settleForm(Row& row, const std::string& badColumn) {
    if (row.form) {
        return true;
    }
    const Texts& texts = desk_.texts;
    const ColumnQuestion question(
        row.presc->columnNames()[static_cast<std::size_t>(row.column) - 1], row.survey,
        answers.value_or(ColumnAnswers()));
    if (question.isHopeless()) {
        desk_.tell(badColumn + "\n" + question.fault(texts));
        return false;
    }
    if (!question.isOpen()) {
        row.form = question.form();
        return true;
    }
    const std::string words = question.words(texts, desk_.locale);
    if (answers) {
        desk_.tell(words + "\n" + texts.format(TextId::CliUseOption, {question.options()}));
        return false;
    }
    row.form = askForm(question, namingFile(words, row.path));
    return row.form.has_value();
}

std::optional<ColumnForm> DoseColumns::askForm(const ColumnQuestion& question,
                                               const std::string& words) const {
    if (!question.hasTwoWays()) {
        return desk_.ask(words, MessageIcon::Question) ? std::optional(question.form())
                                                       : std::nullopt;
    }
    switch (desk_.askOrCancel(words, MessageIcon::Question)) {
    case Answer::Yes:
        return question.form();
    case Answer::No:
        return question.formOfNo();
    case Answer::Cancel:
        break;
    }
    return std::nullopt;
}

bool DoseColumns::areDosesFit(int row) {
    const Row& checked = at(row);
    const Texts& texts = desk_.texts;
    const char symbol = desk_.decimalSymbol();
    const auto values = checked.presc->values(checked.column, *checked.form);
    std::optional<std::size_t> rounded;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double value = values[i].value_or(0);
        if (value < 0 || value > kGreatestDose) {
            desk_.tell(
                texts.format(TextId::DoseNoConsoleHolds,
                             {numberText(row + 1), numberText(i + 1), numberText(value, symbol)}));
            return false;
        }
        if (!rounded && value != std::floor(value)) {
            rounded = i;
        }
    }
    if (rounded && warnsOfDecimals) {
        const double value = *values[*rounded];
        note(texts.format(TextId::DosesGetRounded,
                          {numberText(row + 1), numberText(*rounded + 1), numberText(value, symbol),
                           numberText(roundHalfEven(value))}));
    }
    return true;
}

bool DoseColumns::confirm() {
    if (busy_) {
        return false;
    }
    for (int row = 0; row < rowCount(); ++row) {
        if (!isComplete(row)) {
            return false;
        }
    }
    busy_ = true;
    for (int row = 0; row < rowCount(); ++row) {
        GphPresc& presc = *rows_[static_cast<std::size_t>(row)].presc;
        follow(presc, row);
        presc.setColumnaDosis(at(row).column, *at(row).form);
    }
    busy_ = false;
    return true;
}

std::vector<std::unique_ptr<GphPresc>> DoseColumns::getChannels() {
    std::vector<std::unique_ptr<GphPresc>> channels;
    for (Row& row : rows_) {
        row.presc->progress = nullptr;
        channels.push_back(std::move(row.presc));
    }
    return channels;
}

void DoseColumns::note(const std::string& text) const {
    if (onNote) {
        onNote(text);
        return;
    }
    desk_.tell(text, MessageIcon::Information);
}

}  // namespace campora
