// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/summary_editor.h"

#include <algorithm>
#include <span>
#include <utility>

#include "base/files.h"
#include "base/text.h"

namespace campora {

namespace {

/// A line of the file is one record: a break inside a field becomes a blank.
std::string withoutBreaks(std::string_view field) {
    std::string line = replaceAll(field, "\r\n", " ");
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
}

SummaryEntry withoutBreaks(const SummaryEntry& entry) {
    return {withoutBreaks(entry.property), withoutBreaks(entry.value), withoutBreaks(entry.unit)};
}

SummaryEntry trimmed(const SummaryEntry& entry) {
    const auto [property, value, unit] = withoutBreaks(entry);
    return {std::string(trim(property)), std::string(trim(value)), std::string(trim(unit))};
}

std::vector<SummaryEntry> entriesOf(const FileProperties& summary) {
    std::vector<SummaryEntry> entries;
    for (const SummaryEntry& row : summary.entries()) {
        entries.push_back({row.property.substr(0, row.property.size() - 1), row.value, row.unit});
    }
    return entries;
}

}  // namespace

SummaryDraft::SummaryDraft(std::vector<SummaryEntry> rows) : rows_(std::move(rows)) {
    if (!rows_.empty()) {
        fields = rows_.front();
    }
    untouched_ = fields;
}

void SummaryDraft::select(std::optional<int> row) {
    if (!row || *row < 0 || *row >= static_cast<int>(rows_.size())) {
        selected_.reset();
        return;
    }
    selected_ = row;
    fields = rows_[static_cast<std::size_t>(*row)];
    untouched_ = fields;
}

void SummaryDraft::add() {
    rows_.insert(selected_ ? rows_.begin() + *selected_ : rows_.end(), withoutBreaks(fields));
    if (selected_) {
        ++*selected_;
    }
    untouched_ = fields;
}

void SummaryDraft::remove() {
    if (selected_) {
        rows_.erase(rows_.begin() + *selected_);
        selected_.reset();
        untouched_ = fields;
    }
}

void SummaryDraft::change() {
    if (selected_) {
        rows_[static_cast<std::size_t>(*selected_)] = trimmed(fields);
        untouched_ = fields;
    }
}

void SummaryDraft::acceptFields() {
    const SummaryEntry typed = trimmed(fields);
    if (fields == untouched_ || (!selected_ && typed == SummaryEntry())) {
        return;
    }
    const auto row = selected_
                         ? rows_.begin() + *selected_
                         : std::find_if(rows_.begin(), rows_.end(), [&](const SummaryEntry& entry) {
                               return trim(entry.property) == typed.property;
                           });
    if (row == rows_.end()) {
        rows_.push_back(typed);
    } else {
        *row = typed;
    }
    untouched_ = fields;
}

void SummaryDraft::move(int step) {
    const int target = selected_.value_or(0) + step;
    if (selected_ && target >= 0 && target < static_cast<int>(rows_.size())) {
        std::swap(rows_[static_cast<std::size_t>(*selected_)],
                  rows_[static_cast<std::size_t>(target)]);
        selected_ = target;
    }
}

SummaryEditor::SummaryEditor(std::string_view path, const Desk& desk) : path_(path), desk_(desk) {
    const Result<FileBytes> file = readFile(path);
    if (!file) {
        const Failure& failure = file.failure();
        const bool missing =
            !failure.cause.empty() && failure.cause.front().text == TextId::FileNotFound;
        desk_.tellError(missing ? Failure{TextId::SummaryFileMissing, {}} : failure);
        return;
    }
    const SummaryContent content = splitSummary(file->text());
    wasRead_ = true;
    frame_ = content.frame;
    draft_ = SummaryDraft(entriesOf(content.entries));
}

bool SummaryEditor::accept() {
    if (!wasRead_) {
        return true;
    }
    const std::string bytes = encodeSummary(draft_.rows(), frame_);
    if (const std::optional<Failure> failure =
            writeFile(path_, std::as_bytes(std::span(bytes.data(), bytes.size())))) {
        desk_.tellError(*failure);
        return false;
    }
    return true;
}

void askAndRemove(SummaryDraft& draft, const Desk& desk) {
    if (draft.selected() && desk.askOrCancel(desk.texts(TextId::AskRemoveEntries)) == Answer::Yes) {
        draft.remove();
    }
}

}  // namespace campora
