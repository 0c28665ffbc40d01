// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "app/open/summary_editor.h"
#include "model/shown_summary.h"

namespace campora {

class File;
class Session;

/// What the user does to the summary of the current file. The summary file of a track file is
/// changed itself; what was measured never is: edits of it are kept beside the report at once, or
/// not made.
class SummaryCommands {
public:
    /// `session` outlives this.
    explicit SummaryCommands(Session& session) : session_(session) {}

    /// Whether there is a file on the disk whose summary can be edited.
    [[nodiscard]] bool canEdit() const;
    /// The summary file of the current file; empty where the summary was measured. A summary file
    /// that was not there when its work was opened is looked for again, and shown when it is.
    [[nodiscard]] std::string summaryFile();
    /// Reads the summary file again; one that is not there leaves the summary as it is.
    void reread();

    /// The rows as they are shown.
    [[nodiscard]] SummaryRows rows() const;
    /// Shows these rows from now on. False when they could not be kept, or the user does not want
    /// to lose the edits that are there and cannot be used: nothing has changed then.
    [[nodiscard]] bool keep(const SummaryRows& rows);

    /// Whether a shown row is edited or was added.
    [[nodiscard]] bool isEdited(int row) const;
    [[nodiscard]] bool hasEdits() const;
    /// An edited row shows what was measured again; an added one goes.
    void backToMeasured(int row);
    /// Every row, those that were removed as well.
    void backToMeasured();

private:
    [[nodiscard]] bool keep(SummaryEdits edits);
    void show();

    Session& session_;
};

/// Lays the edits that are kept beside a file over its summary; remarks where they cannot be used.
void addKeptEdits(File& file);

}  // namespace campora
