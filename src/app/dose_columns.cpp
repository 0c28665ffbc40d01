// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/dose_columns.h"

#include <algorithm>
#include <utility>

#include "app/settings.h"
#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

DoseColumns::DoseColumns(const Session& session) : session_(session) {}

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

void DoseColumns::chooseFile(int row) {
    Row& chosen = rows_.at(static_cast<std::size_t>(row));
    if (busy_) {
        return;
    }
    const Platform& platform = session_.platform();
    const Texts& texts = session_.texts();
    OpenRequest request{std::string(texts(TextId::Open)),
                        readText(platform.settings, SettingId::PrescOpenPath),
                        {{std::string(texts(TextId::FilterShapes)), {"*.shp"}}}};
    if (request.folder.empty()) {
        request.folder = session_.programFolder();
    }
    const std::vector<std::string> paths = platform.dialogs.openFiles(request);
    if (paths.empty()) {
        return;
    }
    writeText(platform.settings, SettingId::PrescOpenPath, folderOf(paths.front()));
    chosen = {paths.front(), nullptr};
    load(chosen, row);
    warnOfDistance();
}

void DoseColumns::load(Row& row, int index) {
    auto presc = std::make_unique<GphPresc>();
    follow(*presc, index);
    busy_ = true;
    if (presc->loadFromFile(row.path, session_.platform().dialogs, session_.texts())) {
        row.presc = std::move(presc);
    }
    busy_ = false;
}

void DoseColumns::follow(GphPresc& presc, int row) {
    presc.progress = [this, row, last = -1](int percent) mutable {
        if (std::exchange(last, percent) == percent) {
            return;
        }
        if (onProgress) {
            onProgress(row, percent);
        }
        session_.platform().clock.processEvents();
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
        warn(std::string(session_.texts()(TextId::DosesFarApart)));
    }
}

bool DoseColumns::isWhole(int row) const {
    const Row& shown = at(row);
    return shown.presc && shown.presc->isWhole();
}

std::vector<std::string> DoseColumns::columns(int row) const {
    const Row& shown = at(row);
    return shown.presc ? shown.presc->columnNames() : std::vector<std::string>();
}

void DoseColumns::chooseColumn(int row, int column) {
    Row& chosen = rows_.at(static_cast<std::size_t>(row));
    if (chosen.presc && column >= 1 && column <= chosen.presc->columnCount()) {
        chosen.column = column;
    }
}

std::string DoseColumns::caption(int row) const {
    return session_.texts().format(TextId::ReportPointChannel, {numberText(row + 1)}) + ":";
}

std::string DoseColumns::doseLabel(int row) const {
    const auto& [path, presc, column] = at(row);
    const Texts& texts = session_.texts();
    if (!presc) {
        return std::string(texts(TextId::DosesNoFile));
    }
    if (column == GphPresc::kNoColumn) {
        return {};
    }
    return presc->columnaNumeric(column)
               ? texts.format(TextId::DosesCount,
                              {numberText(presc->dosisCollection(column).size())})
               : std::string(texts(TextId::DosesNotNumeric));
}

bool DoseColumns::isComplete(int row) const {
    const auto& [path, presc, column] = at(row);
    const Texts& texts = session_.texts();
    const auto say = [&texts, row](TextId id) { return texts.format(id, {numberText(row + 1)}); };
    if (!presc) {
        warn(say(TextId::DosesNeedFile));
        return false;
    }
    if (column == GphPresc::kNoColumn) {
        warn(say(TextId::DosesNeedColumn));
        return false;
    }
    if (!presc->columnaNumeric(column)) {
        warn(say(TextId::DosesBadColumn));
        return false;
    }
    return presc->dosisCollection(column).size() <= kMostDoses ||
           session_.platform().dialogs.askYesNoCancel(say(TextId::DosesTooMany),
                                                      MessageIcon::Exclamation,
                                                      texts(TextId::ProgramName)) == Answer::Yes;
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
        presc.setColumnaDosis(at(row).column);
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

void DoseColumns::warn(const std::string& text) const {
    session_.platform().dialogs.message(text, MessageIcon::Exclamation,
                                        session_.texts()(TextId::ProgramName));
}

}  // namespace campora
