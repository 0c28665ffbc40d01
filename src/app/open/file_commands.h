// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/map_preview.h"
#include "app/open/recent_files.h"
#include "platform/dialogs.h"

namespace campora {

/// The commands that open and copy files.
class FileCommands {
public:
    /// All of it outlives this.
    FileCommands(OpenMap& map, MapDisplay& display, MapTools& tools, SettingsStore& settings);

    /// Asks for files, showing what is selected in the map meanwhile, and opens them in place of
    /// the others. Cancelling puts everything back.
    void fileOpen();
    /// Opens files, projects and the supported files of folders, showing progress when there are
    /// several; with `resetFirst` the first that is taken replaces what is open. False when none
    /// was taken.
    bool openPaths(const std::vector<std::string>& paths, bool resetFirst);

    [[nodiscard]] std::vector<std::string> recentFiles() const { return recent_.paths(); }
    /// Opens a recent file in place of the others; one that is gone leaves the list.
    void openRecent(std::string_view path);

    /// Opens the next (or with -1 the one before) of the files in the current file's folder, in
    /// place of the others. Nothing happens at the ends.
    void stepInFolder(int step);
    /// Reads every open file again from its disk; one that cannot be read stays as it was.
    void reload();

    /// Whether there is a logger's work to copy.
    [[nodiscard]] bool canSaveAs() const;
    /// Copies the logger's work opened last, track and summary, under a name that the user chooses.
    void saveAs();

private:
    void preview(const std::vector<std::string>& selected);
    /// What a shapefile selected alone holds, in the status bar.
    void showShapeKind(const std::vector<std::string>& selected);
    /// The files that a path stands for: those of a project, those in a folder, itself.
    struct Behind {
        std::vector<std::string> files;
        bool isProject = false;
    };
    [[nodiscard]] Behind filesOf(const std::string& path, const Desk& desk) const;

    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    SettingsStore& settings_;
    RecentFiles recent_;
    /// While the dialog shows what is selected.
    std::optional<MapPreview> preview_;
    /// Where the last copy went.
    std::string saveFolder_;
};

}  // namespace campora
