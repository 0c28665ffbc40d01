// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/lots/lot_editor.h"
#include "model/file.h"
#include "platform/settings_store.h"

namespace campora {

/// The commands on lots that are open.
class LotCommands {
public:
    /// All of it outlives this.
    LotCommands(OpenMap& map, MapDisplay& display, LotEditor& editor, SettingsStore& settings)
        : map_(map), display_(display), editor_(editor), settings_(settings) {}

    /// Opens the editor, or closes it.
    void toggleEditor();
    /// Opens the editor with the selected lot.
    void edit();
    [[nodiscard]] bool canEdit() const;
    /// Asks where to and writes the lots of the selected file, one a file.
    void save();
    [[nodiscard]] bool canSave() const;
    /// Shows the union of all open lots as a file of its own, on no disk yet, in place of an
    /// earlier one. That one is merged only when no other lots are open: what the user has taken
    /// off the map must not come back with it.
    void merge();
    [[nodiscard]] bool canMerge() const;

private:
    /// The open files of lots that are, or are not, on disk.
    [[nodiscard]] std::vector<File*> lotFiles(bool unsaved) const;
    [[nodiscard]] std::vector<File*> filesToMerge() const;
    /// Shows what was saved in place of the lots of `file`.
    void showSaved(const File& file, const std::vector<std::string>& paths) const;

    OpenMap& map_;
    MapDisplay& display_;
    LotEditor& editor_;
    SettingsStore& settings_;
};

}  // namespace campora
