// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include "app/map_display.h"
#include "app/open/summary_editor.h"
#include "app/open_map.h"
#include "model/shown_summary.h"
#include "platform/clipboard.h"

namespace campora {

class File;

/// What the user does to the summary of the current file. The summary file of a track file is
/// changed itself; what was measured never is: edits of it are kept beside the report at once, or
/// not made.
class SummaryCommands {
public:
    /// Both outlive this.
    SummaryCommands(OpenMap& map, MapDisplay& display) : map_(map), display_(display) {}

    /// Hands over the rows that the user wants; false when they could not be kept.
    using Keep = std::function<bool(const SummaryDraft& draft)>;
    // Set by the window.
    std::function<void(SummaryDraft draft, const Keep& keep)> editMeasured;
    std::function<void(const std::string& path)> editFile;

    /// Whether there is a file on the disk whose summary can be edited.
    [[nodiscard]] bool canEdit() const;
    /// Opens the editor of the summary file, or of the rows where the summary was measured.
    void edit();
    /// The summary file of the current file; empty where the summary was measured. A summary file
    /// that was not there when its work was opened is looked for again, and shown when it is.
    [[nodiscard]] std::string summaryFile();
    /// Reads the summary file again; one that is not there leaves the summary as it is.
    void reread();

    /// The rows as they are shown.
    [[nodiscard]] SummaryDraft draft() const;
    /// Shows these rows from now on. False when they could not be kept, or the user does not want
    /// to lose the edits that are there and cannot be used: nothing has changed then.
    [[nodiscard]] bool keep(const SummaryDraft& draft);

    /// Whether a shown row is edited or was added.
    [[nodiscard]] bool isEdited(int row) const;
    [[nodiscard]] bool hasEdits() const;
    /// An edited row shows what was measured again; an added one goes.
    void backToMeasured(int row);
    /// Every row, those that were removed as well.
    void backToMeasured();

    /// The rows as lines of a text on the clipboard; nothing without rows.
    void copyData(Clipboard& clipboard) const;

private:
    [[nodiscard]] bool keep(SummaryEdits edits);
    void show();

    OpenMap& map_;
    MapDisplay& display_;
};

}  // namespace campora
