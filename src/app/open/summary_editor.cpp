// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/summary_editor.h"

#include <algorithm>
#include <span>
#include <utility>

#include "base/encoding.h"
#include "base/files.h"
#include "base/text.h"
#include "work/summary_file.h"

namespace campora {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A line of the file is one record: a break inside a field becomes a blank.
std::string oneLine(std::string_view field) {
    std::string line = replaceAll(field, "\r\n", " ");
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
}

SummaryEntry oneLine(const SummaryEntry& entry) {
    return {oneLine(entry.property), oneLine(entry.value), oneLine(entry.unit)};
}

SummaryEntry trimmed(const SummaryEntry& entry) {
    const auto [property, value, unit] = oneLine(entry);
    return {std::string(trim(property)), std::string(trim(value)), std::string(trim(unit))};
}

std::string quoted(std::string_view field) {
    return '"' + replaceAll(field, "\"", "\"\"") + '"';
}

/// Texts of consoles are plain ASCII as often as not, which leaves the encoding open; they read
/// Windows-1252.
bool isUtf8Beyond(std::string_view bytes) {
    const bool ascii = std::all_of(bytes.begin(), bytes.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return !ascii && isUtf8(bytes);
}

std::vector<SummaryEntry> entriesOf(const FileProperties& summary) {
    std::vector<SummaryEntry> entries;
    for (const SummaryEntry& row : summary.entries()) {
        entries.push_back({row.property.substr(0, row.property.size() - 1), row.value, row.unit});
    }
    return entries;
}

}  // namespace

SummaryRows::SummaryRows(std::vector<SummaryEntry> rows) : rows_(std::move(rows)) {
    if (!rows_.empty()) {
        fields = rows_.front();
    }
    untouched_ = fields;
}

void SummaryRows::select(std::optional<int> row) {
    if (!row || *row < 0 || *row >= static_cast<int>(rows_.size())) {
        selected_.reset();
        return;
    }
    selected_ = row;
    fields = rows_[static_cast<std::size_t>(*row)];
    untouched_ = fields;
}

void SummaryRows::add() {
    rows_.insert(selected_ ? rows_.begin() + *selected_ : rows_.end(), oneLine(fields));
    if (selected_) {
        ++*selected_;
    }
    untouched_ = fields;
}

void SummaryRows::remove() {
    if (selected_) {
        rows_.erase(rows_.begin() + *selected_);
        selected_.reset();
        untouched_ = fields;
    }
}

void SummaryRows::change() {
    if (selected_) {
        rows_[static_cast<std::size_t>(*selected_)] = trimmed(fields);
        untouched_ = fields;
    }
}

void SummaryRows::acceptFields() {
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

void SummaryRows::move(int step) {
    const int target = selected_.value_or(0) + step;
    if (selected_ && target >= 0 && target < static_cast<int>(rows_.size())) {
        std::swap(rows_[static_cast<std::size_t>(*selected_)],
                  rows_[static_cast<std::size_t>(target)]);
        selected_ = target;
    }
}

SummaryEditor::SummaryEditor(std::string_view path, Dialogs& dialogs, const Texts& texts)
    : path_(path), dialogs_(dialogs), texts_(texts) {
    const Result<FileBytes> file = readFile(path);
    if (!file) {
        const Failure& failure = file.failure();
        const bool missing =
            !failure.cause.empty() && failure.cause.front().text == TextId::FileNotFound;
        dialogs_.message(missing ? std::string(texts_(TextId::SummaryFileMissing))
                                 : texts_.sentence(failure),
                         MessageIcon::Error, texts_(TextId::Error));
        return;
    }
    const SummaryContent content = splitSummary(file->text());
    wasRead_ = true;
    utf8_ = isUtf8Beyond(file->text());
    byteOrderMark_ = file->text().starts_with(kByteOrderMark) ? kByteOrderMark : "";
    unread_ = content.unread;
    rows_ = SummaryRows(entriesOf(content.entries));
}

void SummaryEditor::quit() {
    askAndRemove(rows_, dialogs_, texts_);
}

bool SummaryEditor::accept() {
    if (!wasRead_) {
        return true;
    }
    const std::string text = encodeSummary(rows_.rows());
    const bool marked = !byteOrderMark_.empty() && !unread_.starts_with(kByteOrderMark);
    const std::string bytes =
        (marked ? byteOrderMark_ : std::string()) + (utf8_ ? text : toWindows1252(text)) + unread_;
    if (const std::optional<Failure> failure =
            writeFile(path_, std::as_bytes(std::span(bytes.data(), bytes.size())))) {
        dialogs_.message(texts_.sentence(*failure), MessageIcon::Error, texts_(TextId::Error));
        return false;
    }
    return true;
}

void askAndRemove(SummaryRows& rows, Dialogs& dialogs, const Texts& texts) {
    if (rows.selected() &&
        dialogs.askYesNoCancel(texts(TextId::AskRemoveEntries), MessageIcon::Exclamation,
                               texts(TextId::ProgramName)) == Answer::Yes) {
        rows.remove();
    }
}

std::string encodeSummary(const std::vector<SummaryEntry>& rows) {
    std::string text;
    for (const SummaryEntry& row : rows) {
        text.append(quoted(row.property + ":")).append(",").append(quoted(row.value));
        text.append(",").append(quoted(row.unit)).append("\r\n");
    }
    return text;
}

}  // namespace campora
