// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/file_properties.h"
#include "platform/desk.h"
#include "work/summary_file.h"

namespace campora {

/// A summary while a person changes it: its rows with the one that is selected and the texts of the
/// input fields. Of a summary file, the properties stand without the ":" at their end.
class SummaryDraft {
public:
    /// What the user has typed.
    SummaryEntry fields;

    SummaryDraft() = default;
    /// The first row comes into the fields, without being selected.
    explicit SummaryDraft(std::vector<SummaryEntry> rows);

    [[nodiscard]] const std::vector<SummaryEntry>& rows() const { return rows_; }
    [[nodiscard]] std::optional<int> selected() const { return selected_; }
    /// Selects a row and copies it into the fields; none, or an index out of range, selects none.
    void select(std::optional<int> row);

    /// A new row from the fields, before the selected one or at the end. The selection stays with
    /// its row.
    void add();
    /// Takes the selected row out.
    void remove();
    /// The selected row becomes what the fields say, trimmed.
    void change();
    /// What was typed and not yet put into the rows: it changes the selected row, or else the one
    /// of its name; under another name it is a new row. For the end of the editing.
    void acceptFields();
    /// One place towards the top or the end, unless it is there already.
    void up() { move(-1); }
    void down() { move(1); }

private:
    void move(int step);

    std::vector<SummaryEntry> rows_;
    std::optional<int> selected_;
    /// What the fields were before the user typed.
    SummaryEntry untouched_;
};

/// The summary file of a work, opened to change it.
class SummaryEditor {
public:
    /// Reads the file; says so when it is not there or cannot be read, and has no rows then.
    SummaryEditor(std::string_view path, const Desk& desk);

    /// False when there is nothing to edit, which has been said.
    [[nodiscard]] bool wasRead() const { return wasRead_; }
    [[nodiscard]] SummaryDraft& draft() { return draft_; }

    /// Writes the rows back when the file was read at opening, in the encoding that it had. False
    /// when that failed, which has been reported: the editor stays open.
    [[nodiscard]] bool accept();

private:
    std::string path_;
    Desk desk_;
    SummaryDraft draft_;
    bool wasRead_ = false;
    SummaryFrame frame_;
};

/// Asks before the selected row is taken out; nothing happens without one.
void askAndRemove(SummaryDraft& draft, const Desk& desk);

}  // namespace campora
